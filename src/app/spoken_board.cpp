#include "app/spoken_board.h"

#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "board/captions.h"
#include "board/operators.h"
#include "rules/eval_line.h"

namespace tessoro {
namespace {

using platform::Accessible;
using platform::MouseButton;

constexpr std::array<std::string_view, 5> cornerNames{"", "top left", "top right", "bottom left",
                                                      "bottom right"};

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> spokenSigns{
    {{"", "empty"},
     {noNumber, noValue},
     {"=", "equals"},
     {OpPlus, "plus"},
     {OpMinus, "minus"},
     {OpTimes, "times"}}};

/// Row or column of the grid: its first cell, and the step from one cell to the next.
struct Line {
  const Board& board;
  int first;
  int step;

  int cellAt(int place) const { return first + place * step; }
  const std::string& captionAt(int place) const { return board.GridDisp[cellAt(place)].caption(); }
  std::int16_t numberAt(int place) const { return readNumber(captionAt(place)); }

  bool hasNumbers() const { return numberAt(0) != 0 && numberAt(2) != 0 && numberAt(4) != 0; }
  bool isFull() const { return hasNumbers() && !captionAt(1).empty() && !captionAt(3).empty(); }
  bool isFullWithoutDigit() const {
    return isFull() &&
           !isDigit(EvalLine(numberAt(0), numberAt(2), numberAt(4), captionAt(1), captionAt(3)));
  }
};

Line rowLine(const Board& board, int row) {
  return {board, (row - 1) * gridSide + 1, 1};
}
Line columnLine(const Board& board, int column) {
  return {board, column, gridSide};
}

std::vector<Line> linesEndingIn(const Board& board, int cell) {
  std::vector<Line> lines;
  if (columnOf(cell) == gridSide) lines.push_back(rowLine(board, rowOf(cell)));
  if (rowOf(cell) == gridSide) lines.push_back(columnLine(board, columnOf(cell)));
  return lines;
}

/// Returns the end of a line in words: its value and, if it ends in a corner, the corner's status.
std::string endOfLine(const Line& line) {
  const int result = line.cellAt(6);
  const int k = cornerOf(result);
  const std::string& caption = line.captionAt(6);
  const std::string status = k == 0 ? "" : cornerStatus(line.board, k);
  if (readNumber(caption) != 0) {
    // Until play has begun, a corner shows its target.
    const bool isTarget = k != 0 && status.empty() && !line.isFull();
    return isTarget ? ", " + std::string(noValue) + ", target " + caption
                    : " is " + caption + status;
  }
  return ", " + (caption.empty() ? std::string(noValue) : spokenCell(line.board, result)) + status;
}

std::string spokenLine(const std::string& name, const Line& line) {
  const bool ends = roleOf(line.cellAt(5)) == CellRole::equals;
  std::string words = name + ":";
  for (int place = 0; place < (ends ? 5 : gridSide); ++place) {
    const int cell = line.cellAt(place);
    if (roleOf(cell) == CellRole::hole) continue;
    words += (ends || place == 0 ? " " : ", ") + spokenCell(line.board, cell);
  }
  return ends ? words + endOfLine(line) : words;
}

constexpr Accessible::Action press{"Press", MouseButton::left};
constexpr Accessible::Action decrease{"Decrease", MouseButton::right};

/// Returns what a cell shows, then its place.
std::string describe(int index, const Board& board) {
  return spokenCell(board, index) + ", row " + numberText(rowOf(index)) + " column " +
         numberText(columnOf(index));
}

Accessible describedCell(int index, const Board& board) {
  const auto name = [index, &board] { return describe(index, board); };
  switch (roleOf(index)) {
    case CellRole::number:
      return {Accessible::Role::button, name, {press, decrease}, true};
    case CellRole::operatorSign:
      return {Accessible::Role::button, name, {press}, true};
    case CellRole::hole:
    case CellRole::outerCorner:
    case CellRole::spare:
      return {};
    default:
      return {Accessible::Role::label, name, {}, true};
  }
}

void describeCorner(int k, Board& board) {
  const auto name = [k, &board] {
    return describe(CornerCells[k], board) + cornerStatus(board, k);
  };
  // In set-a-puzzle mode, the player sets the corners.
  board.GridDisp[CornerCells[k]].accessible = {
      Accessible::Role::button, name, {press, decrease}, true};
  Cell& target = board.GridDisp[OuterCornerCells[k]];
  target.accessible = {Accessible::Role::label,
                       [k, &target] { return cornerName(k) + " target " + target.caption(); },
                       {}};
  board.NPict[k].accessible = {
      Accessible::Role::image, [k] { return cornerName(k) + " correct"; }, {}};
}

void describeButton(Cell& button) {
  button.accessible = {Accessible::Role::button, [&button] { return button.caption(); }, {press}};
}

}  // namespace

std::string spoken(const std::string& caption) {
  for (const auto& [sign, words] : spokenSigns) {
    if (caption == sign) return std::string(words);
  }
  return caption;
}

std::string spokenCell(const Board& board, int cell) {
  const std::string& caption = board.GridDisp[cell].caption();
  if (caption != noNumber) return spoken(caption);
  if (cornerOf(cell) != 0 && cornerStatus(board, cornerOf(cell)).empty()) return "not set";
  bool full = false;
  for (const Line& line : linesEndingIn(board, cell)) {
    // The grand result has no value while another result has none.
    if (!line.hasNumbers()) return spoken(caption);
    full = full || line.isFullWithoutDigit();
  }
  return full ? "no digit" : spoken(caption);
}

std::string cornerName(int k) {
  return std::string(cornerNames[k]);
}

std::string cornerStatus(const Board& board, int k) {
  const Cell& target = board.GridDisp[OuterCornerCells[k]];
  if (board.NPict[k].Visible()) return ", correct";
  return target.Visible() ? ", target " + target.caption() : "";
}

std::string spokenRow(const Board& board, int row) {
  return spokenLine("Row " + numberText(row), rowLine(board, row));
}

std::string spokenColumn(const Board& board, int column) {
  return spokenLine("Column " + numberText(column), columnLine(board, column));
}

std::string spokenCorners(const Board& board) {
  std::string words = "Corners:";
  for (int k = 1; k <= 4; ++k) {
    words += (k == 1 ? " " : ", ") + cornerName(k) + " " + spokenCell(board, CornerCells[k]) +
             cornerStatus(board, k);
  }
  return words;
}

void describeForScreenReaders(Form1& form) {
  for (int cell = 0; cell < boardCells; ++cell) {
    form.board.GridDisp[cell].accessible = describedCell(cell, form.board);
  }
  for (int k = 1; k <= 4; ++k) describeCorner(k, form.board);
  describeButton(form.NewPuz);
  describeButton(form.Solveit);
  form.Solveit.accessible.actions.push_back({"Help Here", MouseButton::right});
}

}  // namespace tessoro
