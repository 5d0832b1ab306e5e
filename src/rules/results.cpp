#include "rules/results.h"

#include <algorithm>
#include <array>
#include <string>

#include "board/captions.h"
#include "rules/eval_line.h"

namespace tessoro {
namespace {

constexpr int rowStep = 1;
constexpr int columnStep = gridSide;

/// Number cells whose lines together cover all rows and columns of numbers.
constexpr std::array<int, 4> cellsOfAllLines{3, 5, 15, 29};

constexpr std::array<int, 6> lineResultCells{7, 21, 35, 43, 45, 47};

}  // namespace

void Results::show(int value, int cell) {
  board_.GridDisp[cell].caption = isDigit(value) ? numberText(value) : std::string(noNumber);
}

void Results::updateLine(int first, int step) {
  const auto caption = [&](int position) -> const std::string& {
    return board_.GridDisp[first + position * step].caption();
  };
  const int value = EvalLine(readNumber(caption(0)), readNumber(caption(2)), readNumber(caption(4)),
                             caption(1), caption(3));
  show(value, first + 6 * step);
}

void Results::UpdateLines(std::string_view code) {
  const std::string_view row = code.substr(0, 2);
  const std::string_view column = code.substr(row.size(), 2);
  if (const int first = readNumber(row); first != 0) updateLine(first, rowStep);
  if (const int first = readNumber(column); first != 0) updateLine(first, columnStep);
}

void Results::UpdateCornerResult() {
  const bool unknown = std::ranges::any_of(
      lineResultCells, [&](int cell) { return board_.GridDisp[cell].caption() == noNumber; });
  if (unknown) {
    board_.GridDisp[CornerCells[4]].caption = std::string(noNumber);
  } else {
    updateLine(CornerCells[3], rowStep);
  }
}

void Results::updateAll() {
  for (const int cell : cellsOfAllLines) UpdateLines(board_.GridDisp[cell].Tag());
  UpdateCornerResult();
}

}  // namespace tessoro
