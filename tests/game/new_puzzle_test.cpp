#include "fixture.h"

namespace tessoro::test {

using NewPuzzleTest = GameTest;

TEST_F(NewPuzzleTest, NeedsALeftPressAndAReleaseOnTheButton) {
  form.NewPuz.press({});
  form.NewPuz.release(platform::MouseButton::left, false);
  form.NewPuz.press({.button = platform::MouseButton::right});
  form.NewPuz.release(platform::MouseButton::right, true);
  EXPECT_EQ(form.caption(), "Puzzle Number  1");
}

TEST_F(NewPuzzleTest, NumberInTheTitleStartsAgainAt1AfterTheLargest) {
  game.state.PuzzleNo = 32766;
  click(form.NewPuz);
  EXPECT_EQ(form.caption(), "Puzzle Number  32767");
  EXPECT_TRUE(lastSaid().starts_with("Puzzle 32767. Corners: top left")) << lastSaid();
  click(form.NewPuz);
  EXPECT_EQ(form.caption(), "Puzzle Number  1");
}

TEST_F(NewPuzzleTest, StartASolutionFillsTheBoardAtRandomAndContinuesPlay) {
  choose("Show Solution");
  nextDigits = "9129315941199999";  // one per number; the results are calculated
  choose("Start a Solution");
  EXPECT_EQ(grid(),
            "7 + 1 + 2 = ?\n"
            "+ # + # + # +\n"
            "3 + 1 + 5 = 9\n"
            "+ # + # + # +\n"
            "4 + 1 + 1 = 6\n"
            "= # = # = # =\n"
            "? + 3 + 8 = ?\n");
  EXPECT_EQ(corners(), ":) 1 3 8");
  press(17);
  EXPECT_EQ(caption(17), "2");
}

}  // namespace tessoro::test
