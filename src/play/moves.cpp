#include "play/moves.h"

#include <string>
#include <string_view>

#include "board/captions.h"
#include "board/operators.h"

namespace tessoro {
namespace {

/// The next digit: upwards from 9 comes 1, downwards from 1 comes 9, and what shows no digit counts
/// as 0.
std::string nextDigit(std::string_view caption, platform::MouseButton button) {
  const bool down = button == platform::MouseButton::right;
  const int digit = readNumber(caption) + (down ? -1 : 1);
  return numberText(isDigit(digit) ? digit : down ? 9 : 1);
}

std::string nextOperator(std::string_view caption) {
  if (caption.empty() || caption == OpTimes) return std::string(OpPlus);
  if (caption == OpPlus) return std::string(OpMinus);
  if (caption == OpMinus) return std::string(OpTimes);
  return std::string(caption);
}

}  // namespace

void Moves::GridDisp_MouseDown(int Index, const platform::MousePress& press) {
  if (Index > gridCells) return;
  const std::string& caption = board_.GridDisp[Index].caption();
  setCell(Index, isOperator(Index) ? nextOperator(caption) : nextDigit(caption, press.button));
}

bool Moves::canShow(int index, char character) const {
  const std::string_view text(&character, 1);
  if (isOperator(index)) return text == OpPlus || text == OpMinus || text == OpTimes;
  const bool isNumber = state_.SolveMode ? cornerOf(index) != 0 : roleOf(index) == CellRole::number;
  return isNumber && isDigit(character - '0');
}

void Moves::showCharacter(int index, char character) {
  const std::string caption(1, character);
  if (board_.GridDisp[index].caption() != caption) setCell(index, caption);
}

bool Moves::isOperator(int index) const {
  return board_.GridDisp[index].Tag().starts_with('X');
}

void Moves::setCell(int index, const std::string& caption) {
  if (state_.SolveMode) {
    inputCorner(index, caption);
  } else {
    play(index, caption);
  }
}

void Moves::inputCorner(int index, const std::string& caption) {
  Solveit_.enabled = true;
  const int k = cornerOf(index);
  if (k == 0) return;
  board_.GridDisp[index].caption = caption;
  state_.*cornerTargets[k] = readNumber(caption);
}

void Moves::play(int index, const std::string& caption) {
  if (state_.BoardLocked) return;
  if (!board_.GridDisp[OuterCornerCells[1]].Visible()) beginMove();
  Cell& cell = board_.GridDisp[index];
  cell.caption = caption;
  const std::string_view tag = cell.Tag();
  results_.UpdateLines(isOperator(index) ? tag.substr(1) : tag);
  // After a move on one of the two lines that end in cell 49, the cell shows that line's value.
  const bool ownLine =
      isOperator(index) && (rowOf(index) == gridSide || columnOf(index) == gridSide);
  if (!ownLine) results_.UpdateCornerResult();
  cornerCheck_.CheckCorners();
}

/// Every move but those on a board whose top left corner is wrong begins with this, since a right
/// corner hides its outer corner cell.
void Moves::beginMove() {
  board_.setOuterCornersVisible(true);
  results_.updateAll();
  RightMess_.Visible = true;
}

}  // namespace tessoro
