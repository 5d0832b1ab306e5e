#pragma once

#include <string_view>

#include "board/board.h"

namespace tessoro {

/// Recomputes the board's result cells from what the board shows. A result is shown when it is a
/// digit 1..9, anything else as "?".
class Results {
 public:
  explicit Results(Board& board) : board_(board) {}

  /// Recomputes the row and the column that `code` names, four digits "RRCC": RR the first cell of
  /// the row, CC the column; "00" names none.
  void UpdateLines(std::string_view code);
  /// Leaves in cell 49 the value of row 7, or "?" when one of the six other results is "?". Column
  /// 7 ends there too, but its value would never stay, so it is not worked out.
  void UpdateCornerResult();
  /// Recomputes all rows and columns of numbers, then cell 49.
  void updateAll();

 private:
  void updateLine(int first, int step);
  void show(int value, int cell);

  Board& board_;
};

}  // namespace tessoro
