#include "app/game.h"

#include <functional>
#include <string>

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
      narrator(form, state, moves, search, desktop),
      keyCommands(form, moves, narrator) {
  connectEvents();
  describeForScreenReaders(form);
}

void Game::connectEvents() {
  // Handlers can run while a search yields. Those that change the board or speak about it then do
  // nothing, because the search is about to replace it.
  const auto unlessSearching = [this](auto handler) {
    return [this, handler](auto... arguments) {
      if (search.isRunning()) return decltype(handler(arguments...))();
      return handler(arguments...);
    };
  };
  for (int index = 0; index < boardCells; ++index) {
    Cell& cell = form.board.GridDisp[index];
    cell.mouseDown = unlessSearching([this, index](const platform::MousePress& press) {
      narrator.narrate([&] { moves.GridDisp_MouseDown(index, press); },
                       narrator.outcomeOfPress(index));
    });
    cell.refused = unlessSearching([this, index] { narrator.explainRefusal(index); });
  }
  const auto connectTyping = [&](Cell& cell, int index) {
    cell.typed = unlessSearching([this, index](char character, bool shift) {
      return keyCommands.typed(index, character, shift);
    });
  };
  // A screen reader can also give the focus to the targets, but these have no row or column.
  for (int index = 1; index <= gridCells; ++index) connectTyping(form.board.GridDisp[index], index);
  connectTyping(form.NewPuz, 0);
  connectTyping(form.Solveit, 0);
  form.Solveit.refused = unlessSearching([this] { narrator.explainDisabledSolveit(); });
  form.edgeReached = unlessSearching([this] { narrator.say("Edge of the board"); });

  const auto connect = [&](auto& control, auto& object, auto procedure, auto outcome) {
    control.click = unlessSearching([this, &object, procedure, outcome] {
      narrator.narrate(std::bind_front(procedure, &object), std::bind_front(outcome, &narrator));
    });
  };
  connect(form.NewPuz, newGame, &NewGame::NewPuz_Click, &Narrator::puzzleMade);
  connect(form.Solveit, setAPuzzle, &SetAPuzzle::Solveit_Click, &Narrator::puzzleSolved);
  connect(form.StartSolx, newGame, &NewGame::StartSolx_Click, &Narrator::randomStart);
  connect(form.SolveMx, setAPuzzle, &SetAPuzzle::SolveMx_Click, &Narrator::modeSwitched);
  connect(form.ShowSolx, solutionDisplay, &SolutionDisplay::ShowSolx_Click, [](const Narrator*) {
    return std::string("The solution is shown, and the puzzle is over");
  });
  cornerCheck.beforeMessage = [this] { narrator.sayOutcome(); };

  form.Solveit.contextMenu = std::bind_front(&SetAPuzzle::Solveit_ContextMenu, &setAPuzzle);
  form.PrintX.click = [this] { printCommand.PrintX_Click(); };
  form.Helpx.click = form.help = [this] { shell.Helpx_Click(); };
  form.Aboutx.click = [this] { shell.Aboutx_Click(); };
  form.Exitx.click = [this] { shell.Exitx_Click(); };
  form.unload = [this] { startUp.Form_Unload(); };
}

}  // namespace tessoro
