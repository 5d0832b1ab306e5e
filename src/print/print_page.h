#pragma once

#include <array>
#include <string>
#include <string_view>

#include "board/board.h"
#include "board/puzzle_state.h"

namespace tessoro {

/// The page of the last three puzzles, each with its solution beside it, as lines of text. It is
/// composed as puzzles are made, so that printing needs neither the board nor the puzzle.
class PrintPage {
 public:
  /// The number of lines that are printed: elements 1..55 of `PrintLines`.
  static constexpr int lineCount = 55;
  /// The heading lines of the three slots; the grids of a slot stand on the 15 lines below.
  static constexpr std::array<int, 3> headings{1, 20, 39};
  static constexpr std::string_view headingText = "Puzzle No";

  PrintPage(const Board& board, const PuzzleState& state) : board_(board), state_(state) {}

  /// Element k is the k-th line of the page. Of the 81, lines 1..55 are printed; lines up to 75 are
  /// laid out, the last 20 of them blank; 0 and the rest are not used. A line of a slot is 70
  /// characters wide, the heading of a puzzle as wide as its text, which is no wider.
  std::array<std::string, 81> PrintLines;

  /// Lays out three slots of empty grids.
  void InitPrintPage();
  /// Writes the current puzzle, its corners as the board shows them, and its solution into the
  /// slot of its number.
  void RecordPuzzleForPrint();

 private:
  void write(int heading, int grid, int cell, char text);
  void drawGrid(int heading, int grid);

  const Board& board_;
  const PuzzleState& state_;
};

}  // namespace tessoro
