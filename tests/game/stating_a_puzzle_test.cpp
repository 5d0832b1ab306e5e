#include "fixture.h"

namespace tessoro::test {

struct StatingAPuzzleTest : GameTest {
  StatingAPuzzleTest() {
    press(17);
    choose("Set a Puzzle for computer to solve");
  }
  void state(const std::string& corners) {
    for (int k = 1; k <= 4; ++k) turnTo(CornerCells[k], corners.substr(k - 1, 1));
  }
};

TEST_F(StatingAPuzzleTest, AsksForTheCornersOfAnEmptyBoard) {
  EXPECT_EQ(grid(),
            "? . . . . = ?\n"
            ". # . # . # .\n"
            ". . . . . = .\n"
            ". # . # . # .\n"
            ". . . . . = .\n"
            "= # = # = # =\n"
            "? . . . . = ?\n");
  EXPECT_EQ(corners(), ". . . .");
}

TEST_F(StatingAPuzzleTest, SolvePuzzleNeedsAllFourCorners) {
  for (const int corner : {1, 7, 43}) press(corner);
  click(form.Solveit);
  EXPECT_EQ(lastSaid(), "set corner numbers first [OK]");
}

TEST_F(StatingAPuzzleTest, SolvePuzzleShowsASolutionWithTheStatedCorners) {
  state("7138");
  nextDigits = "971534952";  // the first is drawn for nothing: that corner is stated
  click(form.Solveit);
  EXPECT_EQ(grid(), solution);
}

TEST_F(StatingAPuzzleTest, AnyPressLetsTheSameCornersBeSolvedAgain) {
  state("7138");
  click(form.Solveit);
  EXPECT_FALSE(form.Solveit.enabled());
  press(3);
  EXPECT_TRUE(form.Solveit.enabled());
}

TEST_F(StatingAPuzzleTest, SearchIsGivenUpAfter500Attempts) {
  state("1439");
  failNextSearch(501);
  click(form.Solveit);
  EXPECT_EQ(lastSaid(), "Cannot Solve This Time ! [OK]");
  EXPECT_EQ(nextDigits, failingDigits) << "left of the 501st attempt";
  EXPECT_EQ(game.state.PuzzleNo, 1) << "the number is not used up";
}

TEST_F(StatingAPuzzleTest, LeavingKeepsTheBoardAndTakesNoMove) {
  state("7138");
  choose("End computer solution mode");
  press(3);
  EXPECT_EQ(caption(3), "");
  EXPECT_EQ(caption(7), "1");
  EXPECT_EQ(form.SolveMx.caption(), "Set a Puzzle for computer to Solve") << "with a capital S";
}

}  // namespace tessoro::test
