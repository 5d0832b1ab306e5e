#include "picture.h"

namespace tessoro::test {

using MouseTest = PictureTest;

TEST_F(MouseTest, ReleaseElsewhereIsNoClick) {
  const QPoint button = view.mapTo(&window, rectOf(game.form.NewPuz).center());
  QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, button);
  QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, button - QPoint(0, 100));
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
