#include "window_fixture.h"

namespace tessoro::test {

TEST_F(WindowTest, ControlsCanChangeAfterItCloses) {
  desktop.close();
  game.form.caption = "after";
  game.form.SolveMx.caption = "after";
  cell(17).caption = "1";
  cell(17).SetFocus();
  EXPECT_EQ(caption(17), "1");
}

TEST_F(WindowTest, MenuHasItsCommandsInGroups) {
  EXPECT_EQ(window.menuBar()->actions().first()->text(), "Puzzle");
  QStringList menu;
  for (const QAction* it : window.findChild<QMenu*>()->actions())
    menu += it->isSeparator() ? "---" : it->text();
  EXPECT_EQ(menu, QStringList({"Start a Solution", "Show Solution", "---",
                               "Set a Puzzle for computer to solve", "---", "Print", "---", "Help",
                               "About", "---", "Exit"}));
}

TEST_F(WindowTest, HasTheGamesIconInThreeSizes) {
  EXPECT_EQ(window.windowIcon().availableSizes(), QList({QSize(32, 32), {64, 64}, {128, 128}}));
}

TEST_F(WindowTest, ClosingItUnloadsTheForm) {
  bool unloaded = false;
  game.form.unload = [&] { unloaded = true; };
  window.close();
  EXPECT_TRUE(unloaded);
}

TEST_F(WindowTest, BoardStaysAtTheTopLeftIfTheDesktopMaximisesIt) {
  const QSize size = window.size();
  window.windowHandle()->setWindowStates(Qt::WindowMaximized);
  settle();
  EXPECT_EQ(window.maximumSize(), size) << "The window undoes the first attempt";
  window.windowHandle()->setWindowStates(Qt::WindowMaximized);
  settle();
  EXPECT_GT(window.width(), 1000);
  EXPECT_EQ(view.pos(), window.menuBar()->geometry().bottomLeft() + QPoint(0, 1));
}

}  // namespace tessoro::test
