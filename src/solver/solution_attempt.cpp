#include "solver/solution_attempt.h"

#include "board/captions.h"
#include "board/operators.h"

namespace tessoro {
namespace {

bool isFixed(std::int16_t target) {
  return target > 0;
}

/// Stores the values of "a op1 b op2 c" in the order of `OpPairs`; digits 1..9 give -80 to 729.
/// Writes them in place, because copying a freshly written array stalls the processor.
void setPairValues(SolutionAttempt::PairValues& values, int a, int b, int c) {
  const auto set = [&](std::size_t k, int value) { values[k] = static_cast<std::int16_t>(value); };
  set(1, a + b + c);
  set(2, a + b - c);
  set(3, a - b - c);
  set(4, a - b + c);
  set(5, a + b * c);
  set(6, a * b + c);
  set(7, a - b * c);
  set(8, a * b - c);
  set(9, a * b * c);
}

}  // namespace

SolutionAttempt::SolutionAttempt(PuzzleState& state, Digits& digits)
    : state_(state), digits_(digits) {
  for (int digit = 1; digit <= 9; ++digit) digitTexts_[digit] = signedNumberText(digit);
}

bool SolutionAttempt::run() {
  for (int row = 1; row <= 3; ++row) drawRow(row);
  if (!chooseColumns()) return false;
  ColPairValue = PairValue;
  ChooseRowPair(13);
  if (!found()) return false;
  state_.SolNumbers[16] = LineResult;
  RowPairValue = PairValue;
  MatchGrandTotal();
  return found();
}

void SolutionAttempt::drawRow(int row) {
  const int start = (row - 1) * 4 + 1;
  do {
    for (int k = start; k < start + 3; ++k) {
      const int digit = digits_.draw();  // a fixed number uses up a draw, too
      const bool fixed = k == 1 && isFixed(state_.TargetTL);
      state_.SolNumbers[k] = digitTexts_[fixed ? state_.TargetTL : digit];
    }
    ChooseRowPair(start);
  } while (!found());
  state_.SolOperators[2 * row - 1] = LineOp1;
  state_.SolOperators[2 * row] = LineOp2;
  state_.SolNumbers[start + 3] = LineResult;
}

bool SolutionAttempt::chooseColumns() {
  for (int col = 1; col <= 4; ++col) {
    ChooseColPair(col);
    if (!found()) return false;
    // For column 4 this is provisional: MatchGrandTotal() replaces it.
    state_.SolNumbers[12 + col] = LineResult;
    state_.SolOperators[7 + 2 * col] = LineOp1;
    state_.SolOperators[8 + 2 * col] = LineOp2;
  }
  return true;
}

void SolutionAttempt::ChooseRowPair(int start) {
  const std::int16_t target = start == 1    ? state_.TargetTR
                              : start == 13 ? state_.TargetBR
                                            : std::int16_t{0};
  choosePair(start, 1, target);
}

void SolutionAttempt::ChooseColPair(int col) {
  choosePair(col, 4, col == 1 ? state_.TargetBL : std::int16_t{0});
}

void SolutionAttempt::choosePair(int first, int step, std::int16_t target) {
  const auto number = [&](int k) { return readNumber(state_.SolNumbers[first + k * step]); };
  setPairValues(PairValue, number(0), number(1), number(2));
  LineResult = noNumber;
  LineOp1 = noNumber;
  LineOp2 = noNumber;
  for (std::size_t k = 1; k <= PairCount; ++k) {
    if (isDigit(PairValue[k]) && (!isFixed(target) || PairValue[k] == target)) {
      LineResult = digitTexts_[PairValue[k]];
      setOperators(k);
      return;
    }
  }
}

void SolutionAttempt::setOperators(std::size_t pair) {
  LineOp1 = OpPairs[pair].substr(0, 1);
  LineOp2 = OpPairs[pair].substr(1);
}

void SolutionAttempt::MatchGrandTotal() {
  LineResult = "";
  for (std::size_t i = 1; i <= PairCount; ++i) {
    for (std::size_t j = 1; j <= PairCount; ++j) {
      const std::int16_t total = ColPairValue[j];
      if (!isDigit(total) || RowPairValue[i] != total) continue;
      setOperators(i);
      state_.SolOperators[7] = LineOp1;
      state_.SolOperators[8] = LineOp2;
      setOperators(j);
      if (isFixed(state_.TargetBR) && total != state_.TargetBR) continue;
      state_.SolNumbers[16] = digitTexts_[total];
      state_.SolOperators[15] = LineOp1;
      state_.SolOperators[16] = LineOp2;
      return;
    }
  }
  LineResult = noNumber;
}

}  // namespace tessoro
