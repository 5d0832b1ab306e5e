#include "print/print_page.h"

#include <string_view>

#include "board/captions.h"

namespace tessoro {
namespace {

constexpr std::size_t lineWidth = 70;

// First column of each grid of a slot, counted from 1.
constexpr int puzzleColumn = 1;
constexpr int solutionColumn = 40;

constexpr std::string_view borderLine = "+---+---+---+---+---+---+---+";
constexpr std::string_view cellLine = "|   |   |   |   |   |   |   |";
constexpr std::string_view separatorLine = "|---|---|---|---|---|---|---|";
constexpr std::string_view holeMark = "///";

/// Returns the index, from 0, of a cell's first character in a line of the page.
constexpr std::size_t innerStart(int gridColumn, int cell) {
  return static_cast<std::size_t>(gridColumn + 4 * columnOf(cell) - 3 - 1);  // columns count from 1
}

/// Returns the line of the page that shows a cell of the slot under the heading.
constexpr int pageLine(int headingLine, int cell) {
  return headingLine + 2 * rowOf(cell);
}

}  // namespace

void PrintPage::InitPrintPage() {
  // Line 1, the first heading, stays empty until the first puzzle.
  for (int line = 2; line <= 75; ++line) PrintLines[line].assign(lineWidth, ' ');
  for (const int headingLine : headingLines) {
    drawGrid(headingLine, puzzleColumn);
    drawGrid(headingLine, solutionColumn);
  }
}

void PrintPage::drawGrid(int headingLine, int gridColumn) {
  const auto overwrite = [&](int line, std::size_t at, std::string_view text) {
    PrintLines[line].replace(at, text.size(), text);
  };
  const auto gridStart = static_cast<std::size_t>(gridColumn - 1);
  for (int line = 1; line <= 2 * gridSide + 1; ++line) {
    const bool border = line == 1 || line == 2 * gridSide + 1;
    overwrite(headingLine + line, gridStart,
              border          ? borderLine
              : line % 2 == 0 ? cellLine
                              : separatorLine);
  }
  for (int cell = 1; cell <= gridCells; ++cell) {
    if (roleOf(cell) == CellRole::equals) write(headingLine, gridColumn, cell, '=');
    if (roleOf(cell) == CellRole::hole) {
      overwrite(pageLine(headingLine, cell), innerStart(gridColumn, cell), holeMark);
    }
  }
}

void PrintPage::write(int headingLine, int gridColumn, int cell, char text) {
  PrintLines[pageLine(headingLine, cell)][innerStart(gridColumn, cell) + 1] = text;
}

void PrintPage::RecordPuzzleForPrint() {
  const int headingLine = headingLines[(state_.PuzzleNo - 1) % headingLines.size()];
  const std::string number = signedNumberText(state_.PuzzleNo);
  PrintLines[headingLine] =
      std::string(headingText) + number + std::string(28, ' ') + "Solution to Puzzle No" + number;

  for (int k = 1; k <= 4; ++k) {
    const int cell = CornerCells[k];
    write(headingLine, puzzleColumn, cell, board_.GridDisp[cell].caption().back());
  }
  for (int k = 1; k <= 16; ++k) {
    write(headingLine, solutionColumn, numberCells[k], state_.SolNumbers[k].back());
    write(headingLine, solutionColumn, operatorCells[k], state_.SolOperators[k].back());
  }
}

}  // namespace tessoro
