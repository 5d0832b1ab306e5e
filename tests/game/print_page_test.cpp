#include "fixture.h"

namespace tessoro::test {

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
  put({{1, "2"}, {7, "5"}, {43, "7"}, {49, "6"}});
  EXPECT_EQ(game.page.PrintLines[20], std::string(70, ' ')) << "a slot not used yet";
  EXPECT_EQ(game.page.PrintLines[22].substr(0, 30), "|   |   |   |   |   | = |   | ");
  state.PuzzleNo = 7;
  game.page.RecordPuzzleForPrint();
  for (int line = 0; line < 16; ++line) {
    std::string expected = slotOfPuzzle7[line];
    if (line > 0) expected.resize(70, ' ');
    EXPECT_EQ(game.page.PrintLines[1 + line], expected);
  }
}

}  // namespace tessoro::test
