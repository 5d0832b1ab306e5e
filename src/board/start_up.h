#pragma once

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"
#include "platform/desktop.h"
#include "print/print_page.h"
#include "solver/solution_search.h"

namespace tessoro {

/// Handlers of the main window's load and unload events.
class StartUp {
 public:
  StartUp(Board& board, PrintPage& page, SolutionSearch& search, platform::Label& CompMess,
          Cell& Solveit, platform::Desktop& desktop)
      : board_(board),
        page_(page),
        search_(search),
        CompMess_(CompMess),
        Solveit_(Solveit),
        desktop_(desktop) {}

  /// Gives every cell its start-up look and makes the first puzzle.
  void Form_Load();
  void Form_Unload() { desktop_.endProgram(); }

 private:
  void setLook(int index);

  Board& board_;
  PrintPage& page_;
  SolutionSearch& search_;
  platform::Label& CompMess_;
  Cell& Solveit_;
  platform::Desktop& desktop_;
};

}  // namespace tessoro
