#include "app/spoken_board.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace tessoro {
namespace {

using platform::Accessible;
using platform::MouseButton;

/// The corners k = 1..4; element 0 is not used.
constexpr std::array<std::string_view, 5> cornerNames{"", "Top left", "Top right", "Bottom left",
                                                      "Bottom right"};

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> spokenSigns{
    {{"", "empty"},
     {"?", "no value"},
     {"=", "equals"},
     {"+", "plus"},
     {"-", "minus"},
     {"*", "times"}}};

std::string spoken(const std::string& caption) {
  for (const auto& [sign, words] : spokenSigns) {
    if (caption == sign) return std::string(words);
  }
  return caption;
}

Accessible::Role roleFor(CellRole role) {
  switch (role) {
    case CellRole::number:
    case CellRole::rowOperator:
    case CellRole::columnOperator:
      return Accessible::Role::button;
    case CellRole::equals:
    case CellRole::rowResult:
    case CellRole::columnResult:
    case CellRole::grandResult:
      return Accessible::Role::label;
    case CellRole::hole:
    case CellRole::outerCorner:
    case CellRole::spare:
      break;
  }
  return Accessible::Role::none;
}

void describeCell(const int index, Cell& cell) {
  const Accessible::Role role = roleFor(roleOf(index));
  if (role == Accessible::Role::none) return;
  const std::string place =
      "Row " + std::to_string(rowOf(index)) + " column " + std::to_string(columnOf(index)) + ", ";
  cell.accessible = {role,
                     [place, &cell] { return place + spoken(cell.caption()); },
                     {{"Press", MouseButton::left}, {"Decrease", MouseButton::right}}};
}

void describeCorner(int k, Board& board) {
  const std::string name(cornerNames[k]);
  // The user sets the corners' numbers when stating a puzzle.
  board.GridDisp[CornerCells[k]].accessible.role = Accessible::Role::button;
  Cell& outer = board.GridDisp[OuterCornerCells[k]];
  outer.accessible = {
      Accessible::Role::label, [name, &outer] { return name + " target, " + outer.caption(); }, {}};
  board.NPict[k].accessible = {
      Accessible::Role::image, [name] { return name + " corner right"; }, {}};
}

void describeButton(Cell& button) {
  button.accessible = {Accessible::Role::button,
                       [&button] { return button.caption(); },
                       {{"Press", MouseButton::left}}};
}

}  // namespace

void describeForScreenReaders(Form1& form) {
  for (int cell = 0; cell < boardCells; ++cell) describeCell(cell, form.board.GridDisp[cell]);
  for (int k = 1; k <= 4; ++k) describeCorner(k, form.board);
  describeButton(form.NewPuz);
  describeButton(form.Solveit);
  form.Solveit.accessible.actions.push_back({"Help Here", MouseButton::right});
}

}  // namespace tessoro
