#pragma once

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"
#include "platform/desktop.h"

namespace tessoro {

/// Compares the board's corners with the puzzle's, and ends the puzzle when all four are right.
class CornerCheck {
 public:
  CornerCheck(PuzzleState& state, Board& board, platform::Label& RightMess,
              platform::Desktop& desktop)
      : state_(state), board_(board), RightMess_(RightMess), desktop_(desktop) {}

  /// A right corner turns green under a smiling face, a wrong one black beside its target. With
  /// four right the board is locked and the player told; returns when the message is closed.
  void CheckCorners();

 private:
  bool isRight(int k) const;

  PuzzleState& state_;
  Board& board_;
  platform::Label& RightMess_;
  platform::Desktop& desktop_;
};

}  // namespace tessoro
