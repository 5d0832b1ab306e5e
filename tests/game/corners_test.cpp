#include "fixture.h"

namespace tessoro::test {

using CornersTest = GameTest;

TEST_F(CornersTest, RightCornerShowsAFaceInsteadOfItsTarget) {
  turnRow(1, "7 - 7 + 1");
  EXPECT_EQ(corners(), ":) :) 3 8");
}

TEST_F(CornersTest, FourRightCornersEndThePuzzle) {
  solveExcept(33);
  turnTo(33, "2");
  EXPECT_EQ(lastSaid(), "You got it ! [OK]");
  press(33);
  EXPECT_EQ(caption(33), "2") << "the puzzle is over";
}

}  // namespace tessoro::test
