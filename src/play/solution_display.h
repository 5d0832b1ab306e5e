#pragma once

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"

namespace tessoro {

/// Handler of the menu command "Show Solution", and what it shares with "Solve Puzzle".
class SolutionDisplay {
 public:
  SolutionDisplay(PuzzleState& state, Board& board, platform::Label& RightMess)
      : state_(state), board_(board), RightMess_(RightMess) {}

  /// Shows the solution and ends the puzzle.
  void ShowSolx_Click();
  /// Writes the stored solution onto the board, with green corners. After a failed search the
  /// stored solution is incomplete.
  void ShowSolution();

 private:
  PuzzleState& state_;
  Board& board_;
  platform::Label& RightMess_;
};

}  // namespace tessoro
