#include "board/layout.h"

namespace tessoro {
namespace {

constexpr int cellSize = 450;

// In twips. The steps are uneven: where one is 420, neighbouring cells overlap by 30.
constexpr std::array<int, gridSide> columnLeft{630, 1080, 1530, 1980, 2400, 2850, 3300};
constexpr std::array<int, gridSide> rowTop{780, 1230, 1650, 2100, 2550, 3000, 3420};

struct Point {
  int left;
  int top;
};

constexpr std::array<Point, 4> outerCornerAt{{{180, 300}, {3720, 360}, {180, 3870}, {3720, 3840}}};
constexpr Point spareAt{8430, 2970};

constexpr int smileySize = 510;
constexpr std::array<Point, 4> smileyAt{{{150, 315}, {3750, 315}, {150, 3870}, {3720, 3840}}};

constexpr Point pointOf(int cell) {
  if (cell == 0) return spareAt;
  if (cell > gridCells) return outerCornerAt[cell - gridCells - 1];
  return {columnLeft[columnOf(cell) - 1], rowTop[rowOf(cell) - 1]};
}

}  // namespace

platform::Place placeOf(int cell) {
  const Point point = pointOf(cell);
  return {point.left, point.top, cellSize, cellSize};
}

platform::Place smileyPlace(int k) {
  const Point point = smileyAt[k - 1];
  return {point.left, point.top, smileySize, smileySize};
}

}  // namespace tessoro
