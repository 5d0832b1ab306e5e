#include "app/game.h"

namespace tessoro {

Game::Game(platform::Desktop& desktop, Digits& digits)
    : search(state, form.board, digits, page, desktop, form, form.Solveit),
      cornerCheck(state, form.board, form.RightMess, desktop),
      moves(state, form.board, results, cornerCheck, form.RightMess, form.Solveit),
      startUp(form.board, page, search, form.CompMess, form.Solveit, desktop),
      desktop_(desktop) {
  connectEvents();
}

void Game::connectEvents() {
  for (int cell = 0; cell < boardCells; ++cell) {
    form.board.GridDisp[cell].mouseDown = [this, cell](const platform::MousePress& press) {
      // A search runs in here through its yields; the puzzle is not to change beneath it.
      if (!search.underWay()) moves.GridDisp_MouseDown(cell, press);
    };
  }
  form.Exitx.click = [this] { desktop_.endProgram(); };
  form.unload = [this] { startUp.Form_Unload(); };
}

}  // namespace tessoro
