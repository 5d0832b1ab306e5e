#include "client.h"

namespace tessoro::test {

struct ZoomTest : ClientTest {
  void zoomIn() { tap(Qt::Key_Plus, Qt::ControlModifier); }
  void turnWheel(int eighthsOfDegrees) {
    const QPointF at = window.rect().center();
    QWindowSystemInterface::handleWheelEvent(window.windowHandle(), at, window.mapToGlobal(at), {},
                                             {0, eighthsOfDegrees}, Qt::ControlModifier);
    settle();
  }
};

TEST_F(ZoomTest, EachStepMovesPictureAndMouseTogether) {
  for (const double factor : {1.25, 1.5, 2.0, 2.5, 3.0, 4.0}) {
    zoomIn();
    EXPECT_EQ(zoom(), factor);
    click(cell(17));
    settle();
    EXPECT_EQ(difference(), "") << factor;
  }
  EXPECT_EQ(caption(17), "6");
}

TEST_F(ZoomTest, StepsAreSpoken) {
  for (int steps = 0; steps < 7; ++steps) zoomIn();
  tap(Qt::Key_0, Qt::ControlModifier);
  tap(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(said().mid(5), QStringList({"400 percent", "Largest", "100 percent", "Smallest"}));
}

TEST_F(ZoomTest, WheelStepsUpAndDown) {
  turnWheel(120);
  EXPECT_EQ(zoom(), 1.25);
  turnWheel(-120);
  EXPECT_EQ(zoom(), 1);
}

TEST_F(ZoomTest, WindowThatGrowsStaysOnTheScreen) {
  window.move(window.screen()->availableGeometry().bottomRight() - QPoint(320, 350));
  zoomIn();
  EXPECT_TRUE(window.screen()->availableGeometry().contains(window.frameGeometry()));
}

}  // namespace tessoro::test
