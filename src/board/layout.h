#pragma once

#include <array>
#include <string_view>
#include <utility>

#include "platform/control.h"

/// Layout of the board and roles of its cells. Cells 1..49 are the 7 by 7 grid, row by row; 50..53
/// lie outside its corners; 0 is unused and lies outside the window.
namespace tessoro {

constexpr int gridSide = 7;
constexpr int gridCells = gridSide * gridSide;
constexpr int boardCells = 54;

/// Returns the row 1..7 of a grid cell.
constexpr int rowOf(int cell) {
  return (cell - 1) / gridSide + 1;
}
/// Returns the column 1..7 of a grid cell.
constexpr int columnOf(int cell) {
  return (cell - 1) % gridSide + 1;
}

/// Role of a cell. Its value is its character in `roleMap`.
enum class CellRole : char {
  number = 'n',
  operatorSign = '+',
  equals = '=',
  hole = '#',
  rowResult = 'r',
  columnResult = 'c',
  grandResult = 'g',
  outerCorner = 'o',
  spare = ' ',
};

constexpr std::string_view roleMap =
    " "
    "n+n+n=r"
    "+#+#+#+"
    "n+n+n=r"
    "+#+#+#+"
    "n+n+n=r"
    "=#=#=#="
    "c+c+c=g"
    "oooo";
static_assert(roleMap.size() == boardCells);

/// Returns the role of cell 0..53.
constexpr CellRole roleOf(int cell) {
  return static_cast<CellRole>(roleMap[static_cast<unsigned>(cell)]);
}

/// Corners k = 1..4 of the board, always in this order: top left, top right, bottom left, bottom
/// right. Element 0 of these tables is unused.
constexpr std::array<int, 5> CornerCells{0, 1, 7, 43, 49};
/// Returns which corner k = 1..4 the cell is, or 0 if it is none.
constexpr int cornerOf(int cell) {
  for (int k = 1; k <= 4; ++k) {
    if (CornerCells[k] == cell) return k;
  }
  return 0;
}
/// Cells that show the targets, each beside its corner.
constexpr std::array<int, 5> OuterCornerCells{0, 50, 51, 52, 53};
/// Elements of `SolNumbers` for the corners.
constexpr std::array<int, 5> cornerNumbers{0, 1, 4, 13, 16};

/// Cell of each element of `SolNumbers` and `SolOperators`; element 0 is unused.
constexpr std::array<int, 17> numberCells{0,  1,  3,  5,  7,  15, 17, 19, 21,
                                          29, 31, 33, 35, 43, 45, 47, 49};
constexpr std::array<int, 17> operatorCells{0, 2,  4,  16, 18, 30, 32, 44, 46,
                                            8, 22, 10, 24, 12, 26, 14, 28};

/// Tags of the clickable cells, which name the lines through a cell: "RRCC" for a number cell, with
/// RR the first cell of its row and CC that of its column; "XRR00" or "X00CC" for an operator cell.
constexpr std::array<std::pair<int, std::string_view>, 25> cellTags{{
    {1, "0101"},   {3, "0103"},   {5, "0105"},   {15, "1501"},  {17, "1503"},
    {19, "1505"},  {29, "2901"},  {31, "2903"},  {33, "2905"},  {2, "X0100"},
    {16, "X1500"}, {30, "X2900"}, {44, "X4300"}, {4, "X0100"},  {18, "X1500"},
    {32, "X2900"}, {46, "X4300"}, {8, "X0001"},  {10, "X0003"}, {12, "X0005"},
    {14, "X0007"}, {22, "X0001"}, {24, "X0003"}, {26, "X0005"}, {28, "X0007"},
}};

/// Returns the place of a cell in twips: in the frame, or for cell 0 in the window's client area.
platform::Place placeOf(int cell);
/// Returns the place of the smiling face of corner k = 1..4 in the frame, in twips.
platform::Place smileyPlace(int k);

}  // namespace tessoro
