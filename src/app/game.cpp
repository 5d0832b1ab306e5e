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
      startUp(form.board, page, search, form.CompMess, form.Solveit, desktop) {
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

  for (int cell = 0; cell < boardCells; ++cell) {
    form.board.GridDisp[cell].mouseDown = unlessSearching(
        [this, cell](const platform::MousePress& press) { moves.GridDisp_MouseDown(cell, press); });
  }
  form.NewPuz.click = unlessSearching([this] { newGame.NewPuz_Click(); });
  form.Solveit.click = unlessSearching([this] { setAPuzzle.Solveit_Click(); });
  form.StartSolx.click = unlessSearching([this] { newGame.StartSolx_Click(); });
  form.ShowSolx.click = unlessSearching([this] { solutionDisplay.ShowSolx_Click(); });
  form.SolveMx.click = unlessSearching([this] { setAPuzzle.SolveMx_Click(); });

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
