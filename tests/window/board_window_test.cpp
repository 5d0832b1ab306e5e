#include <QMenuBar>

#include "window_fixture.h"

namespace tessoro::test {
namespace {

using BoardWindowTest = WindowTest;

TEST_F(BoardWindowTest, ShowsEveryCellAtItsPlace) {
  EXPECT_EQ(window->windowTitle(), "Puzzle Number  1");
  EXPECT_EQ(window->view().size(), QSize(302, 310));
  EXPECT_GE(window->view().mapTo(window, QPoint()).y(), window->menuBar()->height());

  const QImage image = picture();
  const QColor black(0, 0, 0);
  const QColor green(0, 128, 0);
  // Frame at (4, 4); cell 1 at (42, 52) in it; borders are one pixel wide.
  EXPECT_EQ(image.pixelColor(46, 56), window->palette().color(QPalette::Light));
  EXPECT_EQ(image.pixelColor(47, 57), green);
  EXPECT_EQ(image.pixelColor(46 + 28, 57), green);
  for (int index = 1; index <= 49; ++index) {
    const bool hole = image.pixelColor(middleOf(cell(index))) == black;
    EXPECT_TRUE(hole || roleOf(index) != CellRole::hole) << index;
  }
  EXPECT_EQ(image.pixelColor(4 + 48 + 5, 4 + 32 + 5), green) << "the label above the board";
}

TEST_F(BoardWindowTest, TheMousePlays) {
  click(cell(17));
  EXPECT_EQ(caption(17), "1");
  click(cell(17), Qt::RightButton);
  click(cell(17), Qt::BackButton);
  EXPECT_EQ(caption(17), "1");
  click(cell(20));
  click(cell(9));
  EXPECT_EQ(caption(20) + caption(9), "=");
  // Where neighbours overlap, the press goes to the one in front: cells 4 and 5 share x 160..161.
  QTest::mousePress(&window->view(), Qt::LeftButton, {}, QPoint(4 + 161, 4 + 60));
  EXPECT_EQ(caption(4) + caption(5), "1");
}

TEST_F(BoardWindowTest, AWrongCornerIsBlackBesideItsTargetAndARightOneSmiles) {
  click(cell(17));
  const QImage image = picture();
  EXPECT_EQ(image.pixelColor(middleOf(cell(43)) + QPoint(-12, -12)), QColor(0, 0, 0));
  EXPECT_EQ(image.pixelColor(middleOf(cell(52)) + QPoint(-12, -12)), QColor(0, 128, 0));
  EXPECT_EQ(image.pixelColor(middleOf(game.form.board.NPict[1])), QColor(255, 255, 0));
}

TEST_F(BoardWindowTest, PlaysToTheEndAndOnAfterTheMessage) {
  answerBoxes(QMessageBox::Ok);
  playSolution();
  EXPECT_EQ(messages, std::vector<std::string>{"TESSORO: You got it !"});
  const QImage image = picture();
  for (int k = 1; k <= 4; ++k) {
    EXPECT_EQ(image.pixelColor(middleOf(game.form.board.NPict[k])), QColor(255, 255, 0));
    EXPECT_EQ(image.pixelColor(middleOf(cell(CornerCells[k])) + QPoint(-12, -12)),
              QColor(0, 128, 0));
  }
}

TEST_F(BoardWindowTest, ClosingTheWindowEndsTheProgram) {
  EXPECT_EXIT(window->close(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace tessoro::test
