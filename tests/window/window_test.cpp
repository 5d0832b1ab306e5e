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

TEST_F(WindowTest, HasTheGamesIcon) {
  EXPECT_EQ(window.windowIcon().actualSize({200, 200}), QSize(128, 128));
}

TEST_F(WindowTest, ClosingItUnloadsTheForm) {
  bool unloaded = false;
  game.form.unload = [&] { unloaded = true; };
  window.close();
  EXPECT_TRUE(unloaded);
}

TEST_F(WindowTest, BoardStaysAtTheTopLeftIfTheDesktopMaximisesIt) {
  for (int attempts = 0; attempts < 2; ++attempts) {  // the window undoes the first
    window.windowHandle()->setWindowStates(Qt::WindowMaximized);
    settle();
  }
  EXPECT_GT(window.width(), 1000);
  EXPECT_EQ(view.pos().x(), 0);
}

}  // namespace tessoro::test
