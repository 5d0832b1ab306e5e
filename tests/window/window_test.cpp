#include "window_fixture.h"

namespace tessoro::test {

TEST_F(WindowTest, ControlsMayOutliveIt) {
  desktop.close();
  game.form.caption = "after";
  game.form.SolveMx.caption = "after";
  cell(17).caption = "1";
  cell(17).SetFocus();
  EXPECT_EQ(caption(17), "1");
}

struct MaximisedTest : WindowTest {
  const QSize own = window.size();

  /// As the title bars that Qt draws do.
  void maximise() const {
    window.windowHandle()->setWindowStates(Qt::WindowMaximized);
    settle();
  }
};

TEST_F(MaximisedTest, BoardStaysAtTheTopLeftIfTheDesktopInsists) {
  maximise();
  maximise();
  EXPECT_GT(window.width(), 2 * own.width());
  EXPECT_EQ(view.pos().x(), 0);
}

}  // namespace tessoro::test
