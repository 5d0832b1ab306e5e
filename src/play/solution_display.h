#pragma once

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"

namespace tessoro {

/// The display of a puzzle's solution on the board.
class SolutionDisplay {
 public:
  SolutionDisplay(PuzzleState& state, Board& board, platform::Label& RightMess)
      : state_(state), board_(board), RightMess_(RightMess) {}

  /// Handles the menu command: shows the solution and ends play on this puzzle.
  void ShowSolx_Click();
  /// Writes the stored solution onto the board, its corners green. After a search that gave up,
  /// what is stored is not the solution of any puzzle.
  void ShowSolution();

 private:
  PuzzleState& state_;
  Board& board_;
  platform::Label& RightMess_;
};

}  // namespace tessoro
