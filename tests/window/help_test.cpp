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
};

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

struct HelpFileTest : WindowTest {
  const QTemporaryDir folder;

  /// What help shows for a file with this content, or without the file if it is null.
  QString shown(const QByteArray& content) {
    QFile file(folder.filePath("some.hlp"));
    if (!content.isNull() && file.open(QIODevice::WriteOnly)) file.write(content);
    file.close();
    const qt::Zoom zoom{{}, {}};
    qt::QtHelpViewer viewer({"/none", folder.path()}, zoom);
    viewer.WinHelpA(game.form, "some.hlp", platform::HELP_CONTENTS, 0);
    settle();
    return QApplication::activeWindow()->findChild<QTextBrowser*>()->toPlainText();
  }
};

TEST_F(HelpFileTest, MissingFileIsReported) {
  EXPECT_EQ(shown({}), "The help file \"some.hlp\" cannot be found.");
}

}  // namespace tessoro::test
