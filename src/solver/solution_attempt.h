#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "board/captions.h"
#include "board/operators.h"
#include "board/puzzle_state.h"
#include "solver/digits.h"

namespace tessoro {

/// One attempt at a random solution: random numbers, and for every line the first operator pair
/// whose value is a digit 1..9.
///
/// The solution is a 4 by 4 matrix. Rows and columns 1 to 3 are the numbers, column 4 the results
/// of the rows and row 4 those of the columns. Element (r - 1) * 4 + c of `SolNumbers` is the
/// number at (r, c). Row r has the operators 2r - 1 and 2r, column c has 7 + 2c and 8 + 2c. Targets
/// fix the corners (1, 1), (1, 4), (4, 1) and (4, 4).
class SolutionAttempt {
 public:
  /// Reads the targets from the state and stores the solution in it.
  SolutionAttempt(PuzzleState& state, Digits& digits);
  // Not copyable: LineResult refers to this object's own digitTexts_.
  SolutionAttempt(const SolutionAttempt&) = delete;
  SolutionAttempt& operator=(const SolutionAttempt&) = delete;

  /// Makes the attempt and returns whether it succeeds; on failure the solution is incomplete.
  bool run();

  /// Chooses the operators of the matrix row that begins with element `start` (1, 5, 9 or 13).
  void ChooseRowPair(int start);
  /// Chooses the operators of the matrix column `col`, 1..4.
  void ChooseColPair(int col);
  /// Stores the first grand total that both row 4 and column 4 can give, and their operators. Needs
  /// `RowPairValue` and `ColPairValue`.
  void MatchGrandTotal();

  // Result of the last choice.
  std::string_view LineResult;  ///< value with a leading blank, "?" if none fits, "" after a match
  std::string_view LineOp1;     ///< "?" if no pair fits
  std::string_view LineOp2;

  using PairValues = std::array<std::int16_t, PairCount + 1>;  ///< element 0 is unused
  PairValues PairValue{};                                      ///< of the last line
  PairValues RowPairValue{};                                   ///< of matrix row 4
  PairValues ColPairValue{};                                   ///< of matrix column 4

 private:
  void drawRow(int row);
  bool chooseColumns();
  void choosePair(int first, int step, std::int16_t target);
  void setOperators(std::size_t pair);
  bool found() const { return LineResult != noNumber; }

  PuzzleState& state_;
  Digits& digits_;
  /// Digits as the solution stores them, made once for speed; element 0 is unused.
  std::array<std::string, 10> digitTexts_;
};

}  // namespace tessoro
