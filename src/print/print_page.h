#pragma once

#include <array>
#include <string>
#include <string_view>

#include "board/board.h"
#include "board/puzzle_state.h"

namespace tessoro {

/// Text page with three slots, one for each of the last three puzzles and its solution. It is
/// filled as puzzles are made, so `PrintCommand` needs neither the board nor the puzzle.
class PrintPage {
 public:
  /// Number of printed lines: elements 1..55 of `PrintLines`.
  static constexpr int lineCount = 55;
  /// Heading lines of the three slots; the 15 lines below each are its grids.
  static constexpr std::array<int, 3> headingLines{1, 20, 39};
  static constexpr std::string_view headingText = "Puzzle No";

  PrintPage(const Board& board, const PuzzleState& state) : board_(board), state_(state) {}

  /// Lines of the page, counted from 1. Lines 1..55 are printed and 56..75 are blank; 0 and 76..80
  /// are unused. Grid lines are 70 characters wide, headings at most 70.
  std::array<std::string, 81> PrintLines;

  /// Draws the empty grids of all three slots.
  void InitPrintPage();
  /// Writes the corners and the solution into the slot for the puzzle's number.
  void RecordPuzzleForPrint();

 private:
  void write(int headingLine, int gridColumn, int cell, char text);
  void drawGrid(int headingLine, int gridColumn);

  const Board& board_;
  const PuzzleState& state_;
};

}  // namespace tessoro
