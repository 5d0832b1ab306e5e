#include "picture.h"

namespace tessoro::test {

struct MouseTest : PictureTest {
  Cell& button = game.form.NewPuz;
  QPoint pointIn(const Cell& it) const { return view.mapTo(&window, rectOf(it).center()); }
  void press(Qt::MouseButton mouseButton, const Cell& over) const {
    QTest::mousePress(window.windowHandle(), mouseButton, {}, pointIn(over));
  }
  void release(Qt::MouseButton mouseButton, const Cell& over) const {
    QTest::mouseRelease(window.windowHandle(), mouseButton, {}, pointIn(over));
  }
};

TEST_F(MouseTest, ClickNeedsAPressAndAReleaseOverTheButton) {
  press(Qt::LeftButton, button);
  release(Qt::LeftButton, cell(9));
  EXPECT_EQ(window.windowTitle(), "Puzzle Number  1");
}

TEST_F(MouseTest, AnotherMouseButtonDoesNotInterruptAClick) {
  press(Qt::LeftButton, button);
  press(Qt::RightButton, cell(9));
  release(Qt::RightButton, cell(9));
  release(Qt::LeftButton, button);
  settle();
  EXPECT_EQ(window.windowTitle(), "Puzzle Number  2");
}

TEST_F(MouseTest, ChangedCellRedrawsLittleElse) {
  screen(view);
  const long before = view.drawnControls();
  cell(17).caption = "5";
  settle();
  screen(view);
  EXPECT_LE(view.drawnControls() - before, 6)
      << "the cell, the frame and the cells that it touches";
}

}  // namespace tessoro::test
