#pragma once

#include <functional>

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"
#include "platform/desktop.h"

namespace tessoro {

/// Check of the board's corners against their targets, which detects the solved puzzle.
class CornerCheck {
 public:
  CornerCheck(PuzzleState& state, Board& board, platform::Label& RightMess,
              platform::Desktop& desktop)
      : state_(state), board_(board), RightMess_(RightMess), desktop_(desktop) {}

  /// Shows each correct corner in green with a smiling face, each wrong one in black with its
  /// target. When all four are correct, locks the board, shows a message and returns after it is
  /// closed.
  void CheckCorners();
  /// Called before that message.
  std::function<void()> beforeMessage;

 private:
  bool isCorrect(int k) const;

  PuzzleState& state_;
  Board& board_;
  platform::Label& RightMess_;
  platform::Desktop& desktop_;
};

}  // namespace tessoro
