#pragma once

#include <functional>

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"
#include "platform/desktop.h"

namespace tessoro {

/// The comparison of the board's corners with the puzzle's, which ends it when all four are right.
class CornerCheck {
 public:
  CornerCheck(PuzzleState& state, Board& board, platform::Label& RightMess,
              platform::Desktop& desktop)
      : state_(state), board_(board), RightMess_(RightMess), desktop_(desktop) {}

  /// Turns each right corner green under a smiling face, and each wrong one black beside its
  /// target. When all four are right, locks the board and tells the player; returns when the
  /// message is closed.
  void CheckCorners();
  /// Called before that message.
  std::function<void()> beforeMessage;

 private:
  bool isRight(int k) const;

  PuzzleState& state_;
  Board& board_;
  platform::Label& RightMess_;
  platform::Desktop& desktop_;
};

}  // namespace tessoro
