#include "fixture.h"

namespace tessoro::test {

using KeyCommandsTest = GameTest;

TEST_F(KeyCommandsTest, SameCharacterAgainIsNoMove) {
  solveExcept(46);
  turnTo(28, "+");
  type(17, '3');
  EXPECT_EQ(caption(49), "6") << "column 7's value; a move elsewhere would show row 7's";
}

TEST_F(KeyCommandsTest, NGoesToTheNextEmptyCellAndShiftNToTheOneBefore) {
  turn(15, "5 + 3 -");
  type(15, 'n');
  EXPECT_EQ(focused, 19);
  type(19, 'N');
  EXPECT_EQ(focused, 14);
}

TEST_F(KeyCommandsTest, ShiftNGoesFromSolvePuzzleToTheLastUnsetCorner) {
  choose("Set a Puzzle for computer to solve");
  press(49);
  type(form.Solveit, 'N');
  EXPECT_EQ(focused, 43);
}

TEST_F(KeyCommandsTest, ButtonHasNoRowAndCannotBeSet) {
  for (const Cell* button : {&form.NewPuz, &form.Solveit}) {
    for (const char character : {'r', 'c', '5'}) type(*button, character);
  }
  EXPECT_EQ(desktop.said, (Log{"This button cannot be set", "This button cannot be set"}));
}

/// A screen reader can give the focus to the targets beside the grid.
TEST_F(KeyCommandsTest, NothingIsReadBesideTheGrid) {
  press(17);
  desktop.said.clear();
  for (const int index : {0, 50, 51, 52, 53}) {
    for (const char character : {'r', 'c', 'n'}) type(index, character);
  }
  EXPECT_EQ(desktop.said, Log{});
}

}  // namespace tessoro::test
