#include "app/spoken_board.h"

#include <array>
#include <string_view>
#include <utility>

#include "board/captions.h"
#include "board/operators.h"

namespace tessoro {
namespace {

using platform::Accessible;
using platform::MouseButton;

constexpr std::array<std::string_view, 5> cornerNames{"", "top left", "top right", "bottom left",
                                                      "bottom right"};

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> spokenSigns{
    {{"", "empty"},
     {noNumber, "no value"},
     {"=", "equals"},
     {OpPlus, "plus"},
     {OpMinus, "minus"},
     {OpTimes, "times"}}};

Accessible::Action press() {
  return {"Press", MouseButton::left};
}
Accessible::Action decrease() {
  return {"Decrease", MouseButton::right};
}

/// What a cell shows, then its place.
std::string describe(int index, const Cell& cell) {
  return spoken(cell.caption()) + ", row " + numberText(rowOf(index)) + " column " +
         numberText(columnOf(index));
}

Accessible describedCell(int index, const Cell& cell) {
  const auto name = [index, &cell] { return describe(index, cell); };
  switch (roleOf(index)) {
    case CellRole::number:
      return {Accessible::Role::button, name, {press(), decrease()}, true};
    case CellRole::rowOperator:
    case CellRole::columnOperator:
      return {Accessible::Role::button, name, {press()}, true};
    case CellRole::equals:
    case CellRole::rowResult:
    case CellRole::columnResult:
    case CellRole::grandResult:
      return {Accessible::Role::label, name, {}, true};
    case CellRole::hole:
    case CellRole::outerCorner:
    case CellRole::spare:
      break;
  }
  return {};
}

void describeCorner(int k, Board& board) {
  Cell& cell = board.GridDisp[CornerCells[k]];
  const Cell& target = board.GridDisp[OuterCornerCells[k]];
  const platform::PictureBox& smiley = board.NPict[k];
  // Once play has begun, either its target or a smiling face is shown beside a corner.
  const auto name = [k, &cell, &target, &smiley] {
    std::string words = describe(CornerCells[k], cell);
    if (target.Visible() || smiley.Visible()) words += ", target " + target.caption();
    return smiley.Visible() ? words + ", correct" : words;
  };
  // The user sets the corners' numbers when stating a puzzle.
  cell.accessible = {Accessible::Role::button, name, {press(), decrease()}, true};
  board.GridDisp[OuterCornerCells[k]].accessible = {
      Accessible::Role::label,
      [k, &target] { return cornerName(k) + " target " + target.caption(); },
      {}};
  board.NPict[k].accessible = {
      Accessible::Role::image, [k] { return cornerName(k) + " correct"; }, {}};
}

void describeButton(Cell& button) {
  button.accessible = {Accessible::Role::button, [&button] { return button.caption(); }, {press()}};
}

}  // namespace

std::string spoken(const std::string& caption) {
  for (const auto& [sign, words] : spokenSigns) {
    if (caption == sign) return std::string(words);
  }
  return caption;
}

std::string cornerName(int k) {
  return std::string(cornerNames[k]);
}

void describeForScreenReaders(Form1& form) {
  for (int cell = 0; cell < boardCells; ++cell) {
    form.board.GridDisp[cell].accessible = describedCell(cell, form.board.GridDisp[cell]);
  }
  for (int k = 1; k <= 4; ++k) describeCorner(k, form.board);
  describeButton(form.NewPuz);
  describeButton(form.Solveit);
  form.Solveit.accessible.actions.push_back({"Help Here", MouseButton::right});
}

}  // namespace tessoro
