#include "board/board.h"

#include <string>

namespace tessoro {

Board::Board() {
  for (int cell = 0; cell < boardCells; ++cell) {
    GridDisp[cell].place = placeOf(cell);
    GridDisp[cell].caption = "9";
  }
  for (int k = 1; k <= 4; ++k) NPict[k].place = smileyPlace(k);
}

void Board::SetCellTags() {
  for (const auto& [cell, tag] : cellTags) GridDisp[cell].Tag = std::string(tag);
}

void Board::clearCell(int cell) {
  GridDisp[cell].caption = roleOf(cell) == CellRole::equals ? "=" : "";
}

void Board::clear() {
  for (int cell = 0; cell < boardCells; ++cell) clearCell(cell);
}

void Board::clearBetweenCorners() {
  for (int cell = 1; cell <= gridCells; ++cell) {
    if (cornerOf(cell) == 0) clearCell(cell);
  }
}

void Board::setOuterCornersVisible(bool visible) {
  for (int k = 1; k <= 4; ++k) GridDisp[OuterCornerCells[k]].Visible = visible;
}

void Board::setSmileysVisible(bool visible) {
  for (int k = 1; k <= 4; ++k) NPict[k].Visible = visible;
}

void Board::colourCorners(platform::Colour colour) {
  for (int k = 1; k <= 4; ++k) GridDisp[CornerCells[k]].backcolor = colour;
}

}  // namespace tessoro
