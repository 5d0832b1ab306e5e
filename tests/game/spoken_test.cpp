#include "fixture.h"

namespace tessoro::test {

using SpokenTest = GameTest;

TEST_F(SpokenTest, WinningMoveIsSaidBeforeTheBox) {
  solveExcept(33);
  desktop.said.clear();
  type(33, '2');
  EXPECT_EQ(desktop.said, (Log{"2, row 5 is 2, column 5 is 7, total is 8, bottom right is correct",
                               "You got it ! [OK]"}));
}

TEST_F(SpokenTest, ShowSolutionSaysThatThePuzzleIsOver) {
  choose("Show Solution");
  press(17);
  type(form.NewPuz, 'n');
  EXPECT_EQ(desktop.said, (Log{"The solution is shown, and the puzzle is over",
                               "The puzzle is over", "The puzzle is over"}));
}

TEST_F(SpokenTest, CornerOfANewPuzzleIsReadAsATarget) {
  type(1, 'c');
  EXPECT_EQ(lastSaid(), "Column 1: 7 empty empty empty empty, no value, target 3");
}

/// A key typed in the middle of a puzzle, and the sentence that follows:
///
///     7 - 7 + 1 = 1
///     + # * # . # .
///     9 * 9 . 9 = ?
struct Key {
  const char* name;
  int cell;
  char character;
  const char* heard;
  friend void PrintTo(const Key& key, std::ostream* out) { *out << key.name; }
};
struct KeyTest : GameTest, testing::WithParamInterface<Key> {};

TEST_P(KeyTest, IsAnswered) {
  turn(1, "7 - 7 + 1 . . + . * . . . . 9 * 9 . 9");
  EXPECT_TRUE(type(GetParam().cell, GetParam().character));
  EXPECT_EQ(lastSaid(), GetParam().heard);
}

INSTANTIATE_TEST_SUITE_P(
    Sets, KeyTest,
    testing::Values(Key{"ANumber", 31, '5', "5"}, Key{"TheSameNumber", 3, '7', "7"},
                    Key{"AMinus", 32, '-', "minus"}, Key{"ATimes", 32, '*', "times"},
                    Key{"XForTimes", 32, 'x', "times"}, Key{"PForPlus", 32, 'p', "plus"},
                    Key{"ANumberOneUp", 31, '+', "1"}, Key{"ANumberOneDown", 31, '-', "9"},
                    Key{"AResult", 5, '2', "2, row 1 is 2, top right is wrong, target 1"},
                    Key{"AFullLine", 18, '*', "times, row 3 is full, no digit"}),
    testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(
    Reads, KeyTest,
    testing::Values(
        Key{"TheRow", 3, 'r', "Row 1: 7 minus 7 plus 1 is 1, correct"},
        Key{"ARowThatIsNotFull", 17, 'r', "Row 3: 9 times 9 empty 9, no value"},
        Key{"TheColumn", 10, 'c', "Column 3: 7 times 9 empty empty, no value"},
        Key{"AColumnWithATarget", 1, 'c', "Column 1: 7 plus 9 empty empty, no value, target 3"},
        Key{"WhatIsNoLine", 18, 'c', "Column 4: plus, empty, empty, empty"},
        Key{"TheCorners", 17, 't',
            "Corners: top left 7, correct, top right 1, correct, bottom left no value, target 3, "
            "bottom right no value, target 8"},
        Key{"TheLastSentence", 17, 'l', "9"}),
    testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(
    Refuses, KeyTest,
    testing::Values(Key{"TimesOnANumber", 17, '*', "Type a digit from 1 to 9 here"},
                    Key{"ZeroOnANumber", 17, '0', "Type a digit from 1 to 9 here"},
                    Key{"ADigitOnAnOperator", 46, '5', "Type plus, minus or times here"},
                    Key{"TheGivenNumber", 1, '5', "This number is given"},
                    Key{"AnEqualsSign", 36, '5', "This cell cannot be set"},
                    Key{"AResult", 45, '5', "Results are calculated"}),
    testing::PrintToStringParamName());

}  // namespace tessoro::test
