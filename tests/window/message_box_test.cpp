#include "client.h"

namespace tessoro::test {

using Answer = platform::Desktop::Answer;
using Buttons = platform::Desktop::Buttons;

struct MessageBoxTest : ClientTest {
  Answer show(Buttons buttons, const std::function<void(Box)>& then) {
    onBox = then;
    return desktop.messageBox("Well ?", buttons);
  }
};

TEST_F(MessageBoxTest, MinimisingClosesItWithTheAnswerNo) {
  EXPECT_EQ(show(Buttons::yesNo, [](Box box) { box.widget.showMinimized(); }), Answer::no);
}

TEST_F(MessageBoxTest, WinningMoveIsReadWithTheBoxAndNotSeparately) {
  QString read;
  onBox = [&](Box box) {
    read = box.label()->accessibleName();
    box.firstButton()->click();
  };
  game.solutionDisplay.ShowSolution();
  cell(33).SetFocus();
  type("1");
  said();
  type("2");
  EXPECT_TRUE(read.endsWith("bottom right is correct. You got it !")) << read.toStdString();
  EXPECT_EQ(said(), QStringList());
}

TEST_F(MessageBoxTest, ClientCannotUseTheWindowBehindIt) {
  show(Buttons::ok, [&](Box box) {
    act(cell(17), "Press");
    choose("Set a Puzzle for computer to solve");
    box.firstButton()->click();
  });
  EXPECT_EQ(caption(17), "");
  EXPECT_FALSE(game.state.SolveMode);
}

}  // namespace tessoro::test
