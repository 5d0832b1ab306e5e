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
      narrator(form, state, search, desktop),
      keyCommands(form, state, moves, narrator) {
  connectEvents();
  describeForScreenReaders(form);
}

void Game::connectEvents() {
  for (int index = 0; index < boardCells; ++index) {
    Cell& cell = form.board.GridDisp[index];
    cell.mouseDown = [this, index](const platform::MousePress& press) {
      narrator.narrate([&] { moves.GridDisp_MouseDown(index, press); },
                       narrator.outcomeOfPress(index));
    };
    cell.refused = [this, index] { narrator.explainRefusal(index); };
    // A screen reader may give the focus to what stands beside the grid, too.
    if (index < 1 || index > gridCells) continue;
    cell.typed = [this, index](char character, bool shift) {
      return keyCommands.typedOnCell(index, character, shift);
    };
  }
  form.NewPuz.click = [this] {
    narrator.narrate([this] { newGame.NewPuz_Click(); }, [this] { return narrator.newPuzzle(); });
  };
  form.Solveit.click = [this] {
    narrator.narrate([this] { setAPuzzle.Solveit_Click(); },
                     [this] { return narrator.solvedPuzzle(); });
  };
  form.StartSolx.click = [this] {
    narrator.narrate([this] { newGame.StartSolx_Click(); },
                     [this] { return narrator.randomStart(); });
  };
  form.ShowSolx.click = [this] {
    narrator.narrate([this] { solutionDisplay.ShowSolx_Click(); }, Narrator::solutionShown);
  };
  form.SolveMx.click = [this] {
    narrator.narrate([this] { setAPuzzle.SolveMx_Click(); },
                     [this] { return narrator.modeSwitched(); });
  };
  for (Cell* button : {&form.NewPuz, &form.Solveit}) {
    button->typed = [this](char character, bool shift) {
      return keyCommands.typedOnButton(character, shift);
    };
  }
  form.Solveit.refused = [this] { narrator.explainDisabledSolveit(); };

  form.Solveit.contextMenu = [this](auto... arguments) {
    setAPuzzle.Solveit_ContextMenu(arguments...);
  };
  form.PrintX.click = [this] { printCommand.PrintX_Click(); };
  form.Helpx.click = [this] { shell.Helpx_Click(); };
  form.Aboutx.click = [this] { shell.Aboutx_Click(); };
  form.Exitx.click = [this] { shell.Exitx_Click(); };
  form.help = [this] { shell.Helpx_Click(); };
  form.edgeReached = [this] { narrator.explainEdge(); };
  form.unload = [this] { startUp.Form_Unload(); };
}

}  // namespace tessoro
