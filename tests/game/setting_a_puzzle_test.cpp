#include "fixture.h"

namespace tessoro::test {

struct SettingAPuzzleTest : GameTest {
  SettingAPuzzleTest() {
    press(17);
    choose("Set a Puzzle for computer to solve");
  }
  void setCorners(const std::string& corners) {
    for (int k = 1; k <= 4; ++k) turnTo(CornerCells[k], corners.substr(k - 1, 1));
  }
};

TEST_F(SettingAPuzzleTest, SolvePuzzleShowsASolutionWithThoseCorners) {
  setCorners("7138");
  nextDigits = "971534952";  // the first digit is not used, because that corner is set
  click(form.Solveit);
  EXPECT_EQ(grid(), solution);
}

TEST_F(SettingAPuzzleTest, AnyPressEnablesSolvePuzzleAgain) {
  setCorners("7138");
  click(form.Solveit);
  EXPECT_FALSE(form.Solveit.enabled());
  press(3);
  EXPECT_TRUE(form.Solveit.enabled());
  EXPECT_EQ(lastSaid(), "Press Solve Puzzle to solve it again");
}

TEST_F(SettingAPuzzleTest, SearchGivesUpAfter500Attempts) {
  setCorners("7138");
  click(form.Solveit);
  setCorners("1439");
  failAttempts(501);
  click(form.Solveit);
  EXPECT_EQ(lastSaid(), "Cannot Solve This Time ! [OK]");
  EXPECT_EQ(nextDigits, failingDigits) << "left for a 501st attempt";
  EXPECT_EQ(game.state.PuzzleNo, 2) << "a failed search uses no number";
  EXPECT_EQ(caption(17), "") << "of the solution before";
}

TEST_F(SettingAPuzzleTest, EndComputerSolutionModeReturnsToPlay) {
  choose("End computer solution mode");
  EXPECT_EQ(form.SolveMx.caption(), "Set a Puzzle for computer to Solve");
  EXPECT_FALSE(game.state.SolveMode);
}

}  // namespace tessoro::test
