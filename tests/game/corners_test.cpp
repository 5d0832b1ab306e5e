#include "fixture.h"

namespace tessoro::test {

using CornersTest = GameTest;

TEST_F(CornersTest, CorrectCornerShowsAFaceInsteadOfItsTarget) {
  turn(1, "7 - 7 + 1");
  EXPECT_EQ(corners(), ":) :) 3 8");
}

}  // namespace tessoro::test
