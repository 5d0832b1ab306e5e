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

/// One attempt at a random solution: draws the numbers and takes, for every line, the first
/// operator pair whose value is a digit 1..9.
///
/// The solution is a 4 by 4 matrix: rows and columns 1 to 3 are the lines of numbers, column 4
/// holds the rows' results, row 4 those of the columns. Element (r - 1) * 4 + c of `SolNumbers` is
/// the number at (r, c); row r has the operators 2r - 1 and 2r, column c has 7 + 2c and 8 + 2c.
/// Targets fix the corners (1, 1), (1, 4), (4, 1) and (4, 4).
class SolutionAttempt {
 public:
  /// Reads the targets of the state, and leaves the solution in it.
  SolutionAttempt(PuzzleState& state, Digits& digits);
  // Its views of texts are of its own.
  SolutionAttempt(const SolutionAttempt&) = delete;
  SolutionAttempt& operator=(const SolutionAttempt&) = delete;

  /// Makes the attempt; whether it has given a solution. If not, `SolNumbers` and `SolOperators`
  /// are left half made.
  bool run();

  /// Chooses the operator pair of the matrix row whose first number is element `start` (1, 5, 9
  /// or 13).
  void ChooseRowPair(int start);
  /// The same for the matrix column `col`, 1..4.
  void ChooseColPair(int col);
  /// Chooses the first pairs of the results row and the results column that give the same grand
  /// total, and stores them and the total. Needs `RowPairValue` and `ColPairValue`.
  void MatchGrandTotal();

  // What the last choice has found.
  std::string_view
      LineResult;            ///< the value with a leading blank, "?" if none fits, "" after a match
  std::string_view LineOp1;  ///< "?" if no pair fits
  std::string_view LineOp2;

  using PairValues = std::array<std::int16_t, PairCount + 1>;  ///< element 0 is not used
  PairValues PairValue{};                                      ///< of the line last chosen for
  PairValues RowPairValue{};                                   ///< of matrix row 4
  PairValues ColPairValue{};                                   ///< of matrix column 4

 private:
  void drawRow(int row);
  bool chooseColumns();
  void choosePair(int first, int step, std::int16_t target);
  void takeOperators(std::size_t pair);
  bool found() const { return LineResult != noNumber; }

  PuzzleState& state_;
  Digits& digits_;
  /// The digits as the solution keeps them, made once since a search stores a great many; element 0
  /// is not used.
  std::array<std::string, 10> digitTexts_;
};

}  // namespace tessoro
