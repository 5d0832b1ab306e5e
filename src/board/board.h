#pragma once

#include <array>

#include "board/layout.h"
#include "platform/cell_pane.h"

namespace tessoro {

using Cell = platform::CellPane;

/// Playing field of 54 cells. Their captions are the only record of the player's position.
class Board {
 public:
  /// Puts every cell in its place, with the look of the window layout.
  Board();

  std::array<Cell, boardCells> GridDisp;
  /// Smiling faces over the outer corner cells, 1..4; element 0 is unused.
  std::array<platform::PictureBox, 5> NPict;

  /// Sets the tags of the clickable cells, which name their lines.
  void SetCellTags();
  /// Empties every cell except the "=" cells.
  void clear();
  /// Empties every grid cell except the "=" cells and the four corners.
  void clearBetweenCorners();

  void setOuterCornersVisible(bool visible);
  void setSmileysVisible(bool visible);
  /// Sets the background of the board's four corners.
  void colourCorners(platform::Colour colour);

 private:
  void clearCell(int cell);
};

}  // namespace tessoro
