#include "app/game.h"

#include <utility>

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
  for (int index = 0; index < boardCells; ++index) {
    Cell& cell = form.board.GridDisp[index];
    cell.mouseDown = [this, index](const platform::MousePress& press) {
      playEvent([&] { moves.GridDisp_MouseDown(index, press); }, narrator.outcomeOfPress(index));
    };
    cell.refused = [this, index] { narrator.explainRefusal(index); };
  }
  form.NewPuz.click = [this] {
    playEvent([this] { newGame.NewPuz_Click(); }, [this] { return narrator.newPuzzle(); });
  };
  form.Solveit.click = [this] {
    playEvent([this] { setAPuzzle.Solveit_Click(); }, [this] { return narrator.solvedPuzzle(); });
  };
  form.StartSolx.click = [this] {
    playEvent([this] { newGame.StartSolx_Click(); }, [this] { return narrator.randomStart(); });
  };
  form.ShowSolx.click = [this] {
    playEvent([this] { solutionDisplay.ShowSolx_Click(); }, Narrator::solutionShown);
  };
  form.SolveMx.click = [this] {
    playEvent([this] { setAPuzzle.SolveMx_Click(); }, [this] { return narrator.modeSwitched(); });
  };
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

/// Events come in while a search yields. Those that would change the puzzle or the board are
/// ignored then: the search is about to replace both.
void Game::playEvent(const std::function<void()>& handler, Narrator::Sentence outcome) {
  if (!search.underWay()) narrator.narrate(handler, std::move(outcome));
}

}  // namespace tessoro
