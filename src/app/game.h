#pragma once

#include "app/form1.h"
#include "app/key_commands.h"
#include "app/narrator.h"
#include "app/shell.h"
#include "board/puzzle_state.h"
#include "board/start_up.h"
#include "platform/desktop.h"
#include "play/corner_check.h"
#include "play/moves.h"
#include "play/new_game.h"
#include "play/solution_display.h"
#include "print/print_command.h"
#include "print/print_page.h"
#include "rules/results.h"
#include "solver/digits.h"
#include "solver/set_a_puzzle.h"
#include "solver/solution_search.h"

namespace tessoro {

/// The whole game without the desktop that shows it: the main window, the puzzle, and the
/// procedures that work on them, connected to the window's events.
class Game {
 public:
  /// Lays out the main window. `startUp` makes the first puzzle.
  Game(platform::Desktop& desktop, Digits& digits);

  Form1 form;
  PuzzleState state;

  Results results{form.board};
  PrintPage page{form.board, state};
  SolutionSearch search;
  CornerCheck cornerCheck;
  Moves moves;
  SolutionDisplay solutionDisplay;
  SetAPuzzle setAPuzzle;
  NewGame newGame;
  PrintCommand printCommand;
  Shell shell;
  StartUp startUp;
  Narrator narrator;
  KeyCommands keyCommands;

 private:
  void connectEvents();
};

}  // namespace tessoro
