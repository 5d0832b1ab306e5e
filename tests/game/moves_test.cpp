#include "fixture.h"

namespace tessoro::test {

using enum platform::MouseButton;

struct MovesTest : GameTest {
  /// Presses the cell and returns what it shows after each press.
  std::string shownByPresses(int index, platform::MouseButton button, int presses) {
    std::string shown;
    for (; presses > 0; --presses) {
      press(index, button);
      shown += " " + caption(index);
    }
    return shown;
  }
};

TEST_F(MovesTest, FirstMoveShowsResultsAndTargets) {
  press(17);
  EXPECT_EQ(grid(),
            "7 . . . . = ?\n"
            ". # . # . # .\n"
            ". . 1 . . = ?\n"
            ". # . # . # .\n"
            ". . . . . = ?\n"
            "= # = # = # =\n"
            "? . ? . ? = ?\n");
  EXPECT_EQ(corners(), ":) 1 3 8");
  EXPECT_EQ(form.RightMess.caption(), "Get corner numbers right");
  EXPECT_EQ(lastSaid(), "1, no line has a value yet");
}

TEST_F(MovesTest, LeftPressCountsUpAndRightPressDown) {
  EXPECT_EQ(shownByPresses(17, left, 10), " 1 2 3 4 5 6 7 8 9 1");
  EXPECT_EQ(shownByPresses(17, right, 10), " 9 8 7 6 5 4 3 2 1 9");
}

TEST_F(MovesTest, EveryButtonChangesAnOperatorToTheNext) {
  EXPECT_EQ(shownByPresses(18, left, 4), " + - * +");
  EXPECT_EQ(shownByPresses(18, right, 4), " - * + -");
}

}  // namespace tessoro::test
