#include "client.h"

namespace tessoro::test {

struct HelpTest : ClientTest {
  qt::HelpWindow* help = nullptr;
  QTextBrowser* text = nullptr;

  HelpTest() {
    tap(Qt::Key_F1);
    help = dynamic_cast<qt::HelpWindow*>(QApplication::activeWindow());
    text = help->findChild<QTextBrowser*>();
  }
  int scrolled() const { return text->verticalScrollBar()->value(); }
  void followTheFirstLink() {
    tap(Qt::Key_Tab);
    said();
    tap(Qt::Key_Return);
  }
  void clickTool(const QString& name) const {
    for (auto* it : help->findChildren<QToolButton*>())
      if (it->text() == name) it->click();
  }
};

TEST_F(HelpTest, OpeningItReadsItsTitleAndKeys) {
  EXPECT_EQ(help->windowTitle(), "Tessoro Help");
  EXPECT_EQ(said(), QStringList("Tessoro. Arrow keys move through the text, Tab moves to links, "
                                "Escape closes the help"));
}

TEST_F(HelpTest, TabReadsTheNextLink) {
  said();
  tap(Qt::Key_Tab);
  EXPECT_EQ(said(), QStringList("the keys, link"));
}

TEST_F(HelpTest, ContentsAndBackReturnToTheTop) {
  for (const char* tool : {"Contents", "Back"}) {
    followTheFirstLink();
    clickTool(tool);
    EXPECT_EQ(scrolled(), 0) << tool;
  }
}

TEST_F(HelpTest, ReturnFollowsTheLinkAndReadsItsTarget) {
  const int before = scrolled();
  followTheFirstLink();
  EXPECT_EQ(said(), QStringList("Playing by keys and by ear"));
  EXPECT_GT(scrolled(), before);
}

TEST_F(HelpTest, ArrowMovesTheCaretFromTheLinksTarget) {
  followTheFirstLink();
  tap(Qt::Key_Right);
  EXPECT_EQ(text->textCursor().block().text().simplified(), "Playing by keys and by ear");
  EXPECT_EQ(text->textCursor().positionInBlock(), 1);
}

TEST_F(HelpTest, EscapeClosesItAfterAScreenReaderHasNoticedTheKey) {
  bool isOpen = false;
  QTimer::singleShot(50, [&] { isOpen = help->isVisible(); });  // it waits 100 ms
  tap(Qt::Key_Escape);
  EXPECT_TRUE(isOpen);
  EXPECT_FALSE(help->isVisible());
}

TEST_F(HelpTest, MissingFileIsReported) {
  desktop.helpViewer().WinHelpA(game.form, "none.hlp", platform::HELP_CONTENTS, 0);
  EXPECT_EQ(text->toPlainText(), "The help file \"none.hlp\" cannot be found.");
}

}  // namespace tessoro::test
