#include "fixture.h"

namespace tessoro::test {

using PlayTest = GameTest;
using platform::MouseButton;

TEST_F(PlayTest, StartsOnAnEmptyBoardWithItsFourCorners) {
  std::string shown;
  std::string pressable;
  for (int index = 0; index <= 53; ++index) {
    const bool corner = cell(index).forecolor() == ColWhite;
    shown += corner ? "c" : caption(index).empty() ? "." : caption(index);
    if (cell(index).enabled()) pressable += std::to_string(index) + " ";
    const bool black = roleOf(index) == CellRole::hole;
    EXPECT_EQ(cell(index).backcolor(), corner ? ColGreen : black ? ColBlack : platform::buttonFace);
    EXPECT_EQ(cell(index).Visible(), index < 50);
  }
  EXPECT_EQ(shown, ".c....=c............=.............=.=.=.=.=c....=ccccc");
  EXPECT_EQ(pressable, "0 2 3 4 5 8 10 12 14 15 16 17 18 19 22 24 26 28 29 30 31 32 33 44 46 ");
  EXPECT_TRUE(form.RightMess.Visible() && form.NewPuz.Visible());
  EXPECT_FALSE(form.CompMess.Visible() || form.Solveit.Visible() || form.board.NPict[1].Visible());
  EXPECT_EQ(form.caption(), "Puzzle Number  1");
}

TEST_F(PlayTest, PressesStepDigitsAndOperators) {
  using enum MouseButton;
  std::string shown;
  for (const auto button : {left, right, middle, left, right, right, right}) {
    press(17, button);
    press(18, button);
    shown += caption(17) + caption(18) + " ";
  }
  EXPECT_EQ(shown, "1+ 9- 1* 2+ 1- 9* 8+ ");
  const std::vector<int> noMoves{1, 6, 7, 9, 21, 36, 43, 49, 50, 51};
  const std::string before = captionsOf(noMoves);
  for (const int index : noMoves) press(index);
  game.moves.GridDisp_MouseDown(51, {});
  EXPECT_EQ(captionsOf(noMoves), before);
}

TEST_F(PlayTest, FromTheFirstMoveToTheLast) {
  const std::string targets = captionsOf({1, 7, 43, 49});
  press(17);
  EXPECT_EQ(captionsOf({7, 21, 35, 43, 45, 47, 49, 50, 51, 52, 53}), "???????" + targets);
  // A right corner is green under its face, a wrong one black beside its target.
  const auto corner = [&](int k) {
    const bool smiles = form.board.NPict[k].Visible();
    EXPECT_EQ(cell(OuterCornerCells[k]).Visible(), !smiles);
    EXPECT_EQ(cell(CornerCells[k]).backcolor(), smiles ? ColGreen : ColBlack);
    return smiles;
  };
  EXPECT_TRUE(corner(1) && !corner(2) && !corner(3) && !corner(4));
  playSolution(33);
  EXPECT_TRUE(desktop.messages.empty());
  turnTo(33, std::string(trimmed(state.SolNumbers[11])));
  EXPECT_EQ(desktop.messages, std::vector<std::string>{"You got it !"});
  EXPECT_TRUE(corner(1) && corner(2) && corner(3) && corner(4));
  EXPECT_TRUE(state.BoardLocked && !form.RightMess.Visible());
}

TEST_F(PlayTest, Cell49ShowsTheLineOfTheOperatorMovedLast) {
  // Lines that give the results row 2, 4, 1 and the results column 3, 1, 4.
  put({{1, "1"},  {2, "+"},  {3, "1"},  {4, "+"},  {5, "1"},  {15, "2"}, {16, "+"}, {17, "2"},
       {18, "-"}, {19, "3"}, {29, "1"}, {30, "*"}, {31, "1"}, {32, "+"}, {33, "3"}, {8, "+"},
       {22, "-"}, {10, "+"}, {24, "+"}, {12, "+"}, {26, "-"}, {44, "+"}, {46, "+"}, {14, "-"}});
  state.SolNumbers[1] = " 1";
  state.SolNumbers[16] = " 9";  // out of reach of the moves below, so that play goes on
  press(28);
  EXPECT_EQ(captionsOf({7, 21, 35, 43, 45, 47}), "314241");
  EXPECT_EQ(caption(49), "6") << "column 7: 3 - 1 + 4";
  press(46);
  EXPECT_EQ(caption(49), "5") << "row 7: 2 + 4 - 1";
  press(14);
  EXPECT_EQ(caption(49), "7") << "column 7: 3 * 1 + 4";
  press(44);
  EXPECT_EQ(caption(49), "?") << "row 7: 2 - 4 - 1";
  press(44);
  EXPECT_EQ(caption(49), "7") << "row 7: 2 * 4 - 1";
  press(16);
  EXPECT_EQ(captionsOf({21, 49}), "??") << "row 3: 2 - 2 - 3";
}

}  // namespace tessoro::test
