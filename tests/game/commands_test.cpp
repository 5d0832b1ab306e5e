#include "fixture.h"

namespace tessoro::test {

using CommandsTest = GameTest;
using platform::MouseButton;

TEST_F(CommandsTest, TheMenuReadsAsItShouldAndExitEndsASearch) {
  std::string menu;
  for (const auto* item : form.Gamex.items) menu += item->caption() + "|";
  EXPECT_EQ(menu,
            "Start a Solution|Show Solution|-|Set a Puzzle for computer to solve|-|Print|-|Help|"
            "About|-|Exit|");
  desktop.onYield = [&] { form.Exitx.choose(); };
  EXPECT_THROW(clickButton(form.NewPuz), ProgramEnded);
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(CommandsTest, StartASolutionFillsTheBoardAndReopensIt) {
  form.ShowSolx.choose();
  EXPECT_EQ(caption(17) + caption(28), state.SolNumbers[6].substr(1) + state.SolOperators[16]);
  EXPECT_TRUE(state.BoardLocked && form.board.NPict[4].Visible() && !cell(53).Visible());
  digits.script = {9, 1, 2, 9, 3, 1, 5, 9, 4, 1, 1, 9, 9, 9, 9, 9};
  form.StartSolx.choose();
  EXPECT_TRUE(digits.script.empty());
  const std::string corner(trimmed(state.SolNumbers[1]));
  EXPECT_EQ(captionsOf({1, 3, 5, 15, 17, 19, 29, 31, 33, 2, 28, 46}), corner + "12315411+++");
  EXPECT_EQ(captionsOf({21, 35, 45, 47, 49}), "9638?");
  EXPECT_TRUE(form.board.NPict[1].Visible() && !cell(50).Visible() && !state.BoardLocked);
}

TEST_F(CommandsTest, SetAPuzzleFromEnteringToLeaving) {
  press(3);
  form.SolveMx.choose();
  EXPECT_EQ(captionsOf({1, 7, 43, 49, 2, 3, 6, 21, 42}), "????..=.=");
  EXPECT_EQ(cell(7).backcolor(), ColRed);
  EXPECT_FALSE(cell(51).Visible() || form.board.NPict[1].Visible());
  EXPECT_TRUE(form.CompMess.Visible() && form.Solveit.Visible() && !form.Solveit.enabled());
  EXPECT_FALSE(form.StartSolx.enabled() || form.ShowSolx.enabled());
  EXPECT_EQ(form.SolveMx.caption(), "End computer solution mode");
  press(3);  // no corner, but a press
  EXPECT_EQ(caption(3), "");
  EXPECT_TRUE(form.Solveit.enabled());

  for (const int corner : {1, 7, 43}) {
    press(corner, MouseButton::right);
    EXPECT_EQ(caption(corner), "9");
    press(corner);
    EXPECT_EQ(caption(corner), "1");
  }
  const auto page = game.page.PrintLines;
  clickButton(form.Solveit);
  form.Solveit.press({.button = MouseButton::right});
  EXPECT_EQ(desktop.messages, (std::vector<std::string>{"set corner numbers first", "Help Here"}));
  EXPECT_TRUE(state.PuzzleNo == 1 && game.page.PrintLines == page);

  turnTo(1, "3");
  turnTo(43, "7");
  turnTo(49, "4");
  clickButton(form.Solveit);
  ASSERT_TRUE(game.search.SolveFound());
  EXPECT_EQ(captionsOf({1, 7, 43, 49, 17}), "3174" + std::string(trimmed(state.SolNumbers[6])));
  EXPECT_EQ(cell(1).backcolor(), ColRed);
  EXPECT_FALSE(form.Solveit.enabled());
  press(49);

  form.SolveMx.choose();
  EXPECT_EQ(form.SolveMx.caption(), "Set a Puzzle for computer to Solve");
  EXPECT_TRUE(form.NewPuz.Visible() && form.StartSolx.enabled() && form.ShowSolx.enabled());
  EXPECT_FALSE(form.Solveit.Visible() || form.CompMess.Visible() || form.RightMess.Visible());
  EXPECT_TRUE(state.TargetBR == -1 && cell(49).backcolor() == ColGreen);
  for (const int index : {1, 3, 49}) press(index);
  EXPECT_EQ(captionsOf({1, 7, 43, 49, 3}), "3175" + std::string(trimmed(state.SolNumbers[2])))
      << "over, and the corners are not pressable again";

  form.SolveMx.choose();
  EXPECT_EQ(state.TargetTL, 0);
  game.newGame.NewPuz_Click();  // as when it was pressed before the mode hid it
  EXPECT_TRUE(!state.SolveMode && state.TargetTL == -1 && form.RightMess.Visible());
  EXPECT_EQ(captionsOf({1, 7, 43, 49}), captionsOf({50, 51, 52, 53}));
  EXPECT_EQ(form.caption(), "Puzzle Number  3");
}

TEST_F(CommandsTest, WhileASearchRunsOnlyWhatLeavesThePuzzleAloneActs) {
  desktop.onYield = [&] {
    for (const auto* item : form.Gamex.items) {
      if (item != &form.Exitx && item != &form.Aboutx) item->choose();
    }
    clickButton(form.NewPuz);
  };
  clickButton(form.NewPuz);
  EXPECT_EQ(form.caption() + form.SolveMx.caption() + captionsOf({2, 3}),
            "Puzzle Number  2"
            "Set a Puzzle for computer to solve"
            "..");
  EXPECT_EQ(desktop.messages.at(0), "Print Puzzle No(s): 1") << "without the one under way";
  EXPECT_EQ(desktop.requests.all.at(0), "Puzzle Number  2/qaviro.hlp/3/0");
}

TEST_F(CommandsTest, PrintAsksThenPrints59Lines) {
  for (int puzzle = 2; puzzle <= 4; ++puzzle) clickButton(form.NewPuz);
  form.PrintX.choose();
  EXPECT_EQ(desktop.messages, std::vector<std::string>{"Print Puzzle No(s): 4, 2, 3"});
  const auto& lines = desktop.requests.all;
  EXPECT_TRUE(lines.empty());
  desktop.answer = platform::Desktop::Answer::yes;
  form.PrintX.choose();
  ASSERT_EQ(lines.size(), 62U);
  EXPECT_EQ(lines[0] + lines[1].substr(0, 7) + lines[61],
            "font Courier"
            "size 12"
            "end");
  EXPECT_EQ(lines[2] + lines[3] + lines[4] + lines[5], "");
  for (int k = 1; k <= 55; ++k) EXPECT_EQ(lines[5 + k], "     " + game.page.PrintLines[k]);
  state.PuzzleNo = 32766;
  clickButton(form.NewPuz);
  form.PrintX.choose();
  EXPECT_EQ(desktop.messages.back(), "Print Puzzle No(s): 32767, 2, 3");
}

}  // namespace tessoro::test
