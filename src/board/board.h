#pragma once

#include <array>

#include "board/layout.h"
#include "platform/cell_pane.h"

namespace tessoro {

using Cell = platform::CellPane;

/// The playing field. The captions of its cells are the player's position; nothing else holds it.
class Board {
 public:
  /// Every cell at its place, with the look of the window layout.
  Board();

  std::array<Cell, boardCells> GridDisp;
  /// The smiling faces over the outer corner cells, 1..4; element 0 is not used.
  std::array<platform::PictureBox, 5> NPict;

  /// Gives the clickable cells the codes of their lines.
  void SetCellTags();
  /// Empties every cell but for the "=" signs.
  void clear();
  /// The same for the grid without its four corners.
  void clearBetweenCorners();

  /// Shows or hides the four outer corner cells.
  void setOuterCornersVisible(bool visible);
  /// The same with the four smiling faces.
  void setSmileysVisible(bool visible);
  /// Gives the board's four corners this background.
  void colourCorners(platform::Colour colour);

 private:
  void clearCell(int cell);
};

}  // namespace tessoro
