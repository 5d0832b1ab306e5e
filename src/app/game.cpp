#include "app/game.h"

#include "app/spoken_board.h"

namespace tessoro {

Game::Game(platform::Desktop& desktop, Digits& digits)
    : search(state, form.board, digits, page, desktop, form, form.Solveit),
      cornerCheck(state, form.board, form.RightMess, desktop),
      moves(state, form.board, results, cornerCheck, form.RightMess, form.Solveit),
      solutionDisplay(state, form.board, form.RightMess),
      setAPuzzle(state, form.board, search, solutionDisplay, desktop,
                 {form.SolveMx, form.StartSolx, form.ShowSolx, form.RightMess, form.CompMess,
                  form.NewPuz, form.Solveit}),
      newGame(state, form.board, results, cornerCheck, search, setAPuzzle, digits, form.RightMess),
      printCommand(page, desktop),
      shell(form, desktop),
      startUp(form.board, page, search, form.CompMess, form.Solveit, desktop),
      narrator(form, state, search, desktop) {
  connectEvents();
  describeForScreenReaders(form);
}

void Game::connectEvents() {
  // Events come in while a search yields. Those that would change the puzzle or the board are
  // ignored then: the search is about to replace both.
  const auto unlessSearching = [this](auto handler) {
    return [this, handler](auto... arguments) {
      if (!search.underWay()) handler(arguments...);
    };
  };
  for (int index = 0; index < boardCells; ++index) {
    Cell& cell = form.board.GridDisp[index];
    cell.mouseDown = unlessSearching([this, index](const platform::MousePress& press) {
      narrator.narrate([&] { moves.GridDisp_MouseDown(index, press); },
                       narrator.outcomeOfPress(index));
    });
    cell.refused = [this, index] { narrator.explainRefusal(index); };
  }
  const auto connect = [this, unlessSearching](auto& control, auto handler, auto outcome) {
    control.click =
        unlessSearching([this, handler, outcome] { narrator.narrate(handler, outcome); });
  };
  connect(form.NewPuz, [this] { newGame.NewPuz_Click(); }, [this] { return narrator.newPuzzle(); });
  connect(
      form.Solveit, [this] { setAPuzzle.Solveit_Click(); },
      [this] { return narrator.solvedPuzzle(); });
  connect(
      form.StartSolx, [this] { newGame.StartSolx_Click(); },
      [this] { return narrator.randomStart(); });
  connect(
      form.ShowSolx, [this] { solutionDisplay.ShowSolx_Click(); },
      [] { return Narrator::solutionShown(); });
  connect(
      form.SolveMx, [this] { setAPuzzle.SolveMx_Click(); },
      [this] { return narrator.modeSwitched(); });
  form.Solveit.refused = [this] { narrator.explainDisabledSolveit(); };

  form.Solveit.contextMenu = [this](auto... arguments) {
    setAPuzzle.Solveit_ContextMenu(arguments...);
  };
  form.PrintX.click = [this] { printCommand.PrintX_Click(); };
  form.Helpx.click = [this] { shell.Helpx_Click(); };
  form.Aboutx.click = [this] { shell.Aboutx_Click(); };
  form.Exitx.click = [this] { shell.Exitx_Click(); };
  form.unload = [this] { startUp.Form_Unload(); };
}

}  // namespace tessoro
