#pragma once

#include <string_view>

#include "board/board.h"

namespace tessoro {

/// Recalculation of the result cells from the board's captions. A result that is not a digit 1..9
/// is shown as "?".
class Results {
 public:
  explicit Results(Board& board) : board_(board) {}

  /// Recomputes the row that starts at cell RR and the column that starts at cell CC of the code
  /// "RRCC"; "00" names none.
  void UpdateLines(std::string_view code);
  /// Shows the value of row 7 in cell 49, or "?" while any of the six other results is "?". Column
  /// 7 also ends there, but is not computed here, because row 7 would overwrite its value.
  void UpdateCornerResult();
  /// Recomputes all rows and columns of numbers, then cell 49.
  void updateAll();

 private:
  void updateLine(int first, int step);
  void show(int value, int cell);

  Board& board_;
};

}  // namespace tessoro
