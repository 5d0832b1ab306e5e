#pragma once

#include <string>

#include "app/form1.h"
#include "board/puzzle_state.h"

namespace tessoro::test {

/// The 7 by 7 cells as the player sees them: '.' is an empty one, '#' a hole.
inline std::string drawnGrid(const Board& board) {
  std::string drawn;
  for (int i = 1; i <= gridCells; ++i) {
    const Cell& it = board.GridDisp[i];
    const char* none = it.backcolor() == ColBlack ? "#" : ".";
    drawn += it.caption().empty() ? none : it.caption();
    drawn += columnOf(i) == gridSide ? '\n' : ' ';
  }
  return drawn;
}

/// What stands beside the four corners: ":)", the number to reach, or "." for nothing.
inline std::string drawnCorners(const Board& board) {
  std::string drawn;
  for (int k = 1; k <= 4; ++k) {
    const Cell& target = board.GridDisp[OuterCornerCells[k]];
    if (k > 1) drawn += ' ';
    drawn += board.NPict[k].Visible() ? ":)" : target.Visible() ? target.caption() : ".";
  }
  return drawn;
}

}  // namespace tessoro::test
