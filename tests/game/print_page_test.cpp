#include "fixture.h"

namespace tessoro::test {
namespace {

using PrintPageTest = GameTest;

const std::vector<std::string> slotOfPuzzle7{
    "Puzzle No 7                            Solution to Puzzle No 7",
    "+---+---+---+---+---+---+---+          +---+---+---+---+---+---+---+",
    "| 2 |   |   |   |   | = | 5 |          | 2 | + | 3 | * | 1 | = | 5 |",
    "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|",
    "|   |///|   |///|   |///|   |          | + |///| - |///| * |///| - |",
    "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|",
    "|   |   |   |   |   | = |   |          | 4 | - | 1 | - | 1 | = | 2 |",
    "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|",
    "|   |///|   |///|   |///|   |          | + |///| * |///| * |///| + |",
    "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|",
    "|   |   |   |   |   | = |   |          | 1 | * | 2 | + | 1 | = | 3 |",
    "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|",
    "| = |///| = |///| = |///| = |          | = |///| = |///| = |///| = |",
    "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|",
    "| 7 |   |   |   |   | = | 6 |          | 7 | - | 1 | * | 1 | = | 6 |",
    "+---+---+---+---+---+---+---+          +---+---+---+---+---+---+---+"};

TEST_F(PrintPageTest, ARecordedSlotStandsAsOnPaper) {
  const std::string numbers = "2315411212137116";
  const std::string operators = "+*--*+-*++-***-+";
  for (int k = 1; k <= 16; ++k) {
    state.SolNumbers[k] = {' ', numbers[k - 1]};
    state.SolOperators[k] = operators[k - 1];
  }
  for (const auto& [index, text] : {std::pair{1, "2"}, {7, "5"}, {43, "7"}, {49, "6"}}) {
    cell(index).caption = text;
  }
  state.PuzzleNo = 7;
  game.page.RecordPuzzleForPrint();
  for (int line = 0; line < 16; ++line) {
    std::string expected = slotOfPuzzle7[line];
    if (line > 0) expected.resize(70, ' ');
    EXPECT_EQ(game.page.PrintLines[1 + line], expected);
  }
}

TEST_F(PrintPageTest, ThePageHoldsTheLastThreePuzzles) {
  const auto heading = [&](int line) { return game.page.PrintLines[line].substr(0, 12); };
  const std::string blank(70, ' ');
  const auto& lines = game.page.PrintLines;
  EXPECT_EQ(heading(1), "Puzzle No 1 ");
  EXPECT_TRUE(lines[17] == blank && lines[20] == blank && lines[39] == blank && lines[55] == blank);
  EXPECT_EQ(lines[22].substr(0, 29), "|   |   |   |   |   | = |   |");
  for (int puzzle = 2; puzzle <= 4; ++puzzle) game.search.FindSolution();
  EXPECT_EQ(heading(1) + heading(20) + heading(39), "Puzzle No 4 Puzzle No 2 Puzzle No 3 ");
  state.PuzzleNo = 11;
  game.search.FindSolution();
  EXPECT_EQ(lines[39].size(), 64U);
  EXPECT_EQ(lines[39].substr(40), "Solution to Puzzle No 12");
}

}  // namespace
}  // namespace tessoro::test
