#include "picture.h"

namespace tessoro::test {

struct MouseTest : PictureTest {
  QPoint pointIn(const Cell& it) const { return view.mapTo(&window, rectOf(it).center()); }
};

TEST_F(MouseTest, ClickNeedsAPressAndAReleaseOverTheButton) {
  QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, pointIn(game.form.NewPuz));
  QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, pointIn(cell(9)));
  EXPECT_EQ(window.windowTitle(), "Puzzle Number  1");
}

TEST_F(MouseTest, ChangedCellRedrawsLittleElse) {
  screen(view);
  const long before = view.drawnControls();
  cell(17).caption = "5";
  settle();
  screen(view);
  EXPECT_LE(view.drawnControls() - before, 6) << "the cell, the frame and its neighbours";
}

}  // namespace tessoro::test
