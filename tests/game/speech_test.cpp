#include "fixture.h"

namespace tessoro::test {

struct SpeechTest : GameTest {
  Log heard() { return std::exchange(desktop.said, {}); }
};

TEST_F(SpeechTest, EveryPressHasItsSentence) {
  const auto right = platform::MouseButton::right;
  EXPECT_EQ(game.narrator.firstPuzzle(),
            "Corners: top left 7, top right 1, bottom left 3, bottom right 8");
  for (const int index : {5, 2, 2, 4}) press(index);
  for (int presses = 0; presses < 3; ++presses) press(3, right);
  EXPECT_EQ(
      heard(),
      (Log{"1, no line has a value yet, corners to get right: top right, bottom left, bottom right",
           "plus", "minus", "plus", "9, row 1 is full, no digit, target 1", "8",
           "7, row 1 is 1, top right is correct"}));
  press(5);
  press(5, right);
  for (const int index : {1, 6, 7}) press(index);
  EXPECT_EQ(heard(), (Log{"2, row 1 is 2, top right is wrong, target 1",
                          "1, row 1 is 1, top right is correct", "This number is given",
                          "Nothing is set here", "Results are worked out, not set"}));
  form.ShowSolx.choose();
  press(33);
  EXPECT_EQ(heard(), (Log{"The solution is shown, and the puzzle is over", "The puzzle is over"}));
  state.BoardLocked = false;
  for (int presses = 0; presses < 3; ++presses) press(46);
  EXPECT_EQ(heard(), (Log{"times, total is full, no digit, bottom right is wrong, target 8", "plus",
                          "minus, total is 8, bottom right is correct", "You got it ! [OK]"}));
  script = "9129315941199999";
  form.StartSolx.choose();
  press(4);
  EXPECT_EQ(heard(), (Log{"Random start. Corners: top left 7, correct, top right no digit, target "
                          "1, bottom left no digit, target 3, bottom right no value, target 8",
                          "minus, row 1 is 6, target 1"}));
}

TEST_F(SpeechTest, CommandsTellWhatThereIsToKnow) {
  script = known;
  desktop.onYield = [this] { form.PrintX.choose(); };
  clickButton(form.NewPuz);
  desktop.onYield = [] {};
  EXPECT_EQ(heard(),
            (Log{"Print Puzzle No(s): 1 [Yes] [No]",
                 "Puzzle 2. Corners: top left 7, top right 1, bottom left 3, bottom right 8"}));
  form.SolveMx.choose();
  clickButton(form.Solveit);
  press(3);
  clickButton(form.Solveit);
  EXPECT_EQ(heard(),
            (Log{"Set each corner to its number, then press Solve Puzzle", "Set the corners first",
                 "Only corners are set in this mode", "set corner numbers first [OK]"}));
  for (const int corner : {1, 7, 43, 49}) press(corner, platform::MouseButton::right);
  state.TargetTL = state.TargetTR = state.TargetBL = 0;
  state.TargetBR = 3;
  for (int row = 0; row < 500 * 3; ++row) script += "911";
  clickButton(form.Solveit);
  state.TargetBR = 0;
  script = known;
  clickButton(form.Solveit);
  form.SolveMx.choose();
  EXPECT_EQ(heard(), (Log{"9", "9", "9", "9", "Cannot Solve This Time ! [OK]", "Solved as puzzle 3",
                          "Back from setting puzzles. Press New Puzzle to play on"}));
}

}  // namespace tessoro::test
