#include "play/moves.h"

#include <string>
#include <string_view>

#include "board/captions.h"
#include "board/operators.h"

namespace tessoro {
namespace {

/// Returns the next digit up or down, wrapping between 9 and 1. Without a digit, starts from 0.
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

bool Moves::canSet(int index) const {
  if (state_.SolveMode) return cornerOf(index) != 0;
  return board_.GridDisp[index].enabled() && !state_.BoardLocked;
}

bool Moves::fits(int index, char character) const {
  const std::string_view text(&character, 1);
  if (isOperator(index)) return text == OpPlus || text == OpMinus || text == OpTimes;
  return isDigit(character - '0');
}

void Moves::typeCharacter(int index, char character) {
  setCell(index,
          fits(index, character) ? std::string(1, character) : board_.GridDisp[index].caption());
}

bool Moves::isOperator(int index) const {
  return board_.GridDisp[index].Tag().starts_with('X');
}

void Moves::setCell(int index, const std::string& caption) {
  // While the player sets a puzzle, a press on any cell enables the button, even if it sets
  // nothing.
  if (state_.SolveMode) Solveit_.enabled = true;
  Cell& cell = board_.GridDisp[index];
  if (!canSet(index) || cell.caption() == caption) return;
  if (state_.SolveMode) {
    cell.caption = caption;
    state_.*cornerTargets[cornerOf(index)] = readNumber(caption);
  } else {
    play(index, caption);
  }
}

void Moves::play(int index, const std::string& caption) {
  if (!board_.GridDisp[OuterCornerCells[1]].Visible()) beginMove();
  Cell& cell = board_.GridDisp[index];
  cell.caption = caption;
  const std::string_view tag = cell.Tag();
  results_.UpdateLines(isOperator(index) ? tag.substr(1) : tag);
  // Row 7 and column 7 both end in cell 49. An operator of either leaves its line's value there.
  const bool inLastLine =
      isOperator(index) && (rowOf(index) == gridSide || columnOf(index) == gridSide);
  if (!inLastLine) results_.UpdateCornerResult();
  cornerCheck_.CheckCorners();
}

/// Runs before nearly every move: the top left corner is correct, so CheckCorners() hides cell 50.
void Moves::beginMove() {
  board_.setOuterCornersVisible(true);
  results_.updateAll();
  RightMess_.Visible = true;
}

}  // namespace tessoro
