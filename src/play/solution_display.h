#pragma once

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"

namespace tessoro {

/// Display of the solution on the board.
class SolutionDisplay {
 public:
  SolutionDisplay(PuzzleState& state, Board& board, platform::Label& RightMess)
      : state_(state), board_(board), RightMess_(RightMess) {}

  /// Gives up: shows the solution and ends the puzzle.
  void ShowSolx_Click();
  /// Writes the stored solution onto the board, with green corners. It is incomplete after a search
  /// that gave up.
  void ShowSolution();

 private:
  PuzzleState& state_;
  Board& board_;
  platform::Label& RightMess_;
};

}  // namespace tessoro
