#include "app/about_form.h"
#include "fixture.h"

namespace tessoro::test {
namespace {

using platform::MouseButton;

class CommandsTest : public GameTest {
 protected:
  void setCorner(int k, int digit) {
    for (int i = 0; i < digit; ++i) press(CornerCells[k]);
  }
};

TEST_F(CommandsTest, TheMenuReadsAndEndsAsItShould) {
  std::string menu;
  for (const auto* item : form.Gamex.items) menu += item->caption() + "|";
  EXPECT_EQ(menu,
            "Start a Solution|Show Solution|-|Set a Puzzle for computer to solve|-|Print|-|Help|"
            "About|-|Exit|");
  EXPECT_THROW(form.Exitx.choose(), ProgramEnded);
  EXPECT_THROW(form.unload(), ProgramEnded);
}

TEST_F(CommandsTest, NewPuzzleStartsOver) {
  playSolution();
  clickButton(form.NewPuz);
  EXPECT_EQ(form.caption(), "Puzzle Number  2");
  EXPECT_FALSE(state.BoardLocked);
  EXPECT_TRUE(form.RightMess.Visible());
  EXPECT_EQ(captionsOf({2, 3, 6, 21, 40, 45, 0}), "..=.=..");
  EXPECT_EQ(captionsOf({1, 7, 43, 49}), captionsOf({50, 51, 52, 53}));
  EXPECT_FALSE(cell(50).Visible() || form.board.NPict[1].Visible());
  EXPECT_EQ(cell(49).backcolor(), ColGreen);
}

TEST_F(CommandsTest, StartASolutionFillsTheBoardAndReopensIt) {
  form.ShowSolx.choose();
  digits.script = {9, 1, 2, 9, 3, 1, 5, 9, 4, 1, 1, 9, 9, 9, 9, 9};
  form.StartSolx.choose();
  EXPECT_TRUE(digits.script.empty());
  const int corner = readNumber(state.SolNumbers[1]);
  EXPECT_EQ(captionsOf({1, 3, 5, 15, 17, 19, 29, 31, 33, 2, 28, 46}),
            std::to_string(corner) + "12315411+++");
  EXPECT_EQ(captionsOf({21, 35, 45, 47}), "9638");
  EXPECT_EQ(caption(7), corner + 3 <= 9 ? std::to_string(corner + 3) : "?");
  EXPECT_EQ(caption(49), "?") << "row 7 is far above 9";
  EXPECT_TRUE(form.board.NPict[1].Visible() && !cell(50).Visible());
  EXPECT_FALSE(state.BoardLocked);
  const std::string before = captionsOf({3, 5, 15, 17, 19, 29, 31, 33});
  form.StartSolx.choose();
  EXPECT_NE(captionsOf({3, 5, 15, 17, 19, 29, 31, 33}), before);
}

TEST_F(CommandsTest, ShowSolutionGivesUpWithEveryLineTrue) {
  press(3);
  form.ShowSolx.choose();
  std::string shown;
  std::string stored;
  for (int k = 1; k <= 16; ++k) {
    shown += caption(numberCells[k]) + caption(operatorCells[k]);
    stored += std::string(trimmed(state.SolNumbers[k])) + state.SolOperators[k];
    EXPECT_FALSE(k <= 4 && (!form.board.NPict[k].Visible() || cell(49 + k).Visible()));
  }
  EXPECT_EQ(shown, stored);
  EXPECT_TRUE(isTrueSolution(state));
  EXPECT_FALSE(form.RightMess.Visible());
  EXPECT_TRUE(desktop.messages.empty());
  const std::string before = captionsOf({2, 3});
  press(3);
  press(2);
  EXPECT_EQ(captionsOf({2, 3}), before);
}

TEST_F(CommandsTest, SetAPuzzleFromEnteringToLeaving) {
  press(3);
  form.SolveMx.choose();
  EXPECT_EQ(captionsOf({1, 7, 43, 49, 2, 3, 6, 21, 42}), "????..=.=");
  EXPECT_EQ(cell(7).backcolor(), ColRed);
  EXPECT_FALSE(cell(51).Visible() || form.board.NPict[1].Visible());
  EXPECT_TRUE(form.CompMess.Visible() && form.Solveit.Visible());
  EXPECT_FALSE(form.RightMess.Visible() || form.NewPuz.Visible());
  EXPECT_FALSE(form.StartSolx.enabled() || form.ShowSolx.enabled());
  EXPECT_EQ(form.SolveMx.caption(), "End computer solution mode");
  EXPECT_FALSE(form.Solveit.enabled());

  press(3);  // no corner, but a press
  EXPECT_EQ(caption(3), "");
  press(7, MouseButton::right);
  EXPECT_EQ(caption(7), "9");
  press(7);
  EXPECT_EQ(caption(7), "1");
  press(7, MouseButton::right);
  press(7, MouseButton::middle);
  EXPECT_EQ(captionsOf({7, 51}), "1" + captionsOf({51})) << "outer cells are not for input";
  setCorner(1, 3);
  setCorner(3, 7);
  const auto page = game.page.PrintLines;
  clickButton(form.Solveit);
  EXPECT_EQ(desktop.messages, std::vector<std::string>{"set corner numbers first"});
  EXPECT_EQ(state.PuzzleNo, 1);
  EXPECT_EQ(game.page.PrintLines, page);
  form.Solveit.press({.button = MouseButton::right});
  EXPECT_EQ(desktop.messages.back(), "Help Here");

  setCorner(4, 4);
  clickButton(form.Solveit);
  ASSERT_TRUE(game.search.SolveFound());
  EXPECT_TRUE(isTrueSolution(state));
  EXPECT_EQ(captionsOf({1, 7, 43, 49}), "3174");
  EXPECT_EQ(caption(17), std::string(trimmed(state.SolNumbers[6])));
  EXPECT_EQ(cell(1).backcolor(), ColRed);
  EXPECT_EQ(form.caption(), "Puzzle Number  2");
  EXPECT_FALSE(form.Solveit.enabled());
  press(49);
  EXPECT_EQ(caption(49), "5");
  EXPECT_TRUE(form.Solveit.enabled());

  form.SolveMx.choose();
  EXPECT_EQ(form.SolveMx.caption(), "Set a Puzzle for computer to Solve");
  EXPECT_EQ(captionsOf({1, 7, 43, 49}), "3175");
  EXPECT_TRUE(form.NewPuz.Visible() && form.StartSolx.enabled() && form.ShowSolx.enabled());
  EXPECT_FALSE(form.Solveit.Visible() || form.CompMess.Visible() || form.RightMess.Visible());
  EXPECT_EQ(state.TargetBR, -1);
  EXPECT_EQ(cell(49).backcolor(), ColGreen);
  const std::string left = captionsOf({1, 3, 49});
  for (const int index : {1, 3, 49}) press(index);
  EXPECT_EQ(captionsOf({1, 3, 49}), left) << "over, and the corners are not pressable again";

  form.SolveMx.choose();
  EXPECT_EQ(state.TargetTL, 0);
  clickButton(form.NewPuz);  // hidden, so that nothing happens
  EXPECT_TRUE(state.SolveMode);
  game.newGame.NewPuz_Click();
  EXPECT_FALSE(state.SolveMode);
  EXPECT_EQ(state.TargetTL, -1);
  EXPECT_TRUE(form.RightMess.Visible());
}

TEST_F(CommandsTest, AFailedSolveKeepsTheCornersAndCanBeTriedAgain) {
  form.SolveMx.choose();
  for (int k = 1; k <= 4; ++k) setCorner(k, k);
  for (int attempt = 0; attempt < 500; ++attempt) {
    // 1 + 9 - 8 = 2 and three times 8 - 1 * 7 = 1: column 1, with 1, 8, 8, is never 3.
    digits.script.insert(digits.script.end(), {1, 9, 8, 8, 1, 7, 8, 1, 7});
  }
  clickButton(form.Solveit);
  EXPECT_EQ(desktop.messages, std::vector<std::string>{"Cannot Solve This Time !"});
  EXPECT_EQ(captionsOf({1, 7, 43, 49, 2, 3, 48}), "1234..=");
  EXPECT_EQ(cell(7).backcolor(), ColRed);
  EXPECT_TRUE(form.Solveit.enabled());
  EXPECT_EQ(state.PuzzleNo, 1);
}

TEST_F(CommandsTest, WhileASearchRunsOnlyWhatLeavesThePuzzleAloneActs) {
  std::size_t boxes = 0;
  desktop.onModal = [](platform::Form& box) { box.unload(); };
  desktop.onYield = [&] {
    clickButton(form.NewPuz);
    for (auto* item : {&form.StartSolx, &form.ShowSolx, &form.SolveMx}) item->choose();
    for (auto* item : {&form.PrintX, &form.Helpx, &form.Aboutx}) item->choose();
    boxes = desktop.messages.size();
  };
  clickButton(form.NewPuz);
  EXPECT_EQ(state.PuzzleNo, 2);
  EXPECT_EQ(form.SolveMx.caption(), "Set a Puzzle for computer to solve");
  EXPECT_EQ(captionsOf({2, 3}), "..");
  EXPECT_GE(boxes, 1U);
  EXPECT_EQ(desktop.messages[0], "Print Puzzle No(s): 1") << "without the one under way";
  EXPECT_FALSE(desktop.help.requests.empty());
}

TEST_F(CommandsTest, PrintAsksThenPrints59Lines) {
  for (int puzzle = 2; puzzle <= 4; ++puzzle) clickButton(form.NewPuz);
  form.PrintX.choose();
  EXPECT_EQ(desktop.messages, std::vector<std::string>{"Print Puzzle No(s): 4, 2, 3"});
  EXPECT_TRUE(desktop.sheet.lines.empty());
  desktop.answer = platform::Desktop::Answer::yes;
  form.PrintX.choose();
  const auto& lines = desktop.sheet.lines;
  ASSERT_EQ(lines.size(), 62U);
  EXPECT_EQ(lines[0] + lines[1].substr(0, 7),
            "font Courier"
            "size 12");
  EXPECT_EQ(lines[2] + lines[3] + lines[4] + lines[5], "");
  for (int k = 1; k <= 55; ++k) EXPECT_EQ(lines[5 + k], "     " + game.page.PrintLines[k]);
  EXPECT_EQ(lines[61], "end");
  state.PuzzleNo = 32766;
  clickButton(form.NewPuz);
  form.PrintX.choose();
  EXPECT_EQ(desktop.messages.back(), "Print Puzzle No(s): 32767, 2, 3");
}

TEST_F(CommandsTest, HelpAndAbout) {
  form.Helpx.choose();
  EXPECT_EQ(desktop.help.requests, std::vector<std::string>{"Puzzle Number  1/qaviro.hlp/3/0"});
  int shown = 0;
  for (const int way : {0, 1, 2}) {
    desktop.onModal = [&](platform::Form& form_) {
      auto& box = static_cast<AboutForm&>(form_);
      ++shown;
      if (way == 0) box.AboutOk.click();
      if (way == 1) box.AboutText.mouseDown();
      if (way == 2) box.unload();
    };
    form.Aboutx.choose();
  }
  EXPECT_EQ(shown, 3);
}

}  // namespace
}  // namespace tessoro::test
