#include "play/moves.h"

#include <string>
#include <string_view>

#include "board/captions.h"
#include "board/operators.h"

namespace tessoro {
namespace {

/// Steps the cell's digit and returns it: upwards from 9 comes 1, downwards from 1 comes 9, and a
/// cell without a digit counts as 0.
std::int16_t stepDigit(Cell& cell, platform::MouseButton button) {
  const bool down = button == platform::MouseButton::right;
  int digit = readNumber(cell.caption()) + (down ? -1 : 1);
  if (!isDigit(digit)) digit = down ? 9 : 1;
  cell.caption = numberText(digit);
  return static_cast<std::int16_t>(digit);
}

std::string_view nextOperator(std::string_view text) {
  if (text.empty() || text == OpTimes) return OpPlus;
  if (text == OpPlus) return OpMinus;
  if (text == OpMinus) return OpTimes;
  return text;
}

}  // namespace

void Moves::GridDisp_MouseDown(int Index, const platform::MousePress& press) {
  if (Index > gridCells) return;
  if (state_.SolveMode) {
    inputCorner(Index, press.button);
  } else {
    play(Index, press.button);
  }
}

void Moves::inputCorner(int index, platform::MouseButton button) {
  Solveit_.enabled = true;
  if (const int k = cornerOf(index); k != 0) {
    state_.*cornerTargets[k] = stepDigit(board_.GridDisp[index], button);
  }
}

void Moves::play(int index, platform::MouseButton button) {
  if (state_.BoardLocked) return;
  if (!board_.GridDisp[OuterCornerCells[1]].Visible()) beginMove();
  Cell& cell = board_.GridDisp[index];
  if (cell.Tag().starts_with('X')) {
    moveOperator(index);
  } else {
    moveNumber(cell, button);
  }
  cornerCheck_.CheckCorners();
}

/// Every move but those on a board whose top left corner is wrong begins with this, since a right
/// corner hides its outer corner cell.
void Moves::beginMove() {
  board_.setOuterCornersVisible(true);
  results_.updateAll();
  RightMess_.Visible = true;
}

void Moves::moveNumber(Cell& cell, platform::MouseButton button) {
  stepDigit(cell, button);
  results_.UpdateLines(cell.Tag());
  results_.UpdateCornerResult();
}

void Moves::moveOperator(int index) {
  Cell& cell = board_.GridDisp[index];
  cell.caption = std::string(nextOperator(cell.caption()));
  results_.UpdateLines(std::string_view(cell.Tag()).substr(1));
  // After a move on one of the two lines that end in cell 49, the cell shows that line's value.
  if (rowOf(index) != gridSide && columnOf(index) != gridSide) results_.UpdateCornerResult();
}

}  // namespace tessoro
