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
    tap(Qt::Key_Return);
  }
  QToolButton* tool(const QString& name) const {
    for (auto* it : help->findChildren<QToolButton*>())
      if (it->text() == name) return it;
    return nullptr;
  }
};

TEST_F(HelpTest, OpeningItReadsItsTitleAndKeys) {
  EXPECT_EQ(help->windowTitle(), "Tessoro Help");
  EXPECT_EQ(said(), QStringList("Tessoro. Arrow keys move through the text, Tab moves to links, "
                                "Escape closes the help"));
}

TEST_F(HelpTest, BackReturnsToTheTop) {
  EXPECT_FALSE(tool("Back")->isEnabled());
  followTheFirstLink();
  tool("Back")->click();
  EXPECT_EQ(scrolled(), 0);
}

TEST_F(HelpTest, ContentsReturnsToTheTopForGood) {
  followTheFirstLink();
  tool("Contents")->click();
  EXPECT_EQ(scrolled(), 0);
  EXPECT_FALSE(tool("Back")->isEnabled());
}

TEST_F(HelpTest, TabReadsALinkAndReturnItsTarget) {
  const int before = scrolled();
  followTheFirstLink();
  EXPECT_EQ(said().mid(1),
            QStringList({"the keys, link", "Playing with the keys or a screen reader"}));
  EXPECT_GT(scrolled(), before);
}

TEST_F(HelpTest, ArrowMovesTheCaretFromTheLinksTarget) {
  followTheFirstLink();
  tap(Qt::Key_Right);
  EXPECT_EQ(text->textCursor().block().text().simplified(),
            "Playing with the keys or a screen reader");
  EXPECT_EQ(text->textCursor().positionInBlock(), 1);
}

TEST_F(HelpTest, EscapeClosesItAfterAScreenReaderHasNoticedTheKey) {
  bool isOpen = false;
  QTimer::singleShot(50, [&] { isOpen = help->isVisible(); });  // it waits 100 ms
  tap(Qt::Key_Escape);
  EXPECT_TRUE(isOpen);
  EXPECT_FALSE(help->isVisible());
}

/// Help whose file is damaged.
struct HelpFileTest : HelpTest {
  QString shown(const QString& file) {
    desktop.helpViewer().WinHelpA(game.form, file.toStdString(), platform::HELP_CONTENTS, 0);
    return text->toPlainText();
  }
  QString shownFor(const QByteArray& content) {
    QFile file(QDir::temp().filePath("bad.hlp"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    return shown(file.fileName());
  }
};

TEST_F(HelpFileTest, MissingFileIsReported) {
  EXPECT_EQ(shown("bad.hlp"), "The help file \"bad.hlp\" cannot be found.");
}

TEST_F(HelpFileTest, EmptyFileIsReported) {
  EXPECT_EQ(shownFor(" \n"), "The help file \"bad.hlp\" is empty.");
}

TEST_F(HelpFileTest, BinaryFileIsReported) {
  EXPECT_EQ(shownFor("\xff"), "The help file \"bad.hlp\" is not a text file.");
}

}  // namespace tessoro::test
