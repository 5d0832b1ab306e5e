#include <QAction>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTextEdit>
#include <optional>

#include "app/about_form.h"
#include "qt/help_window.h"
#include "window_fixture.h"

namespace tessoro::test {
namespace {

class ShellWindowTest : public WindowTest {
 protected:
  QAction* action(const QString& text) {
    for (QAction* item : window->menuBar()->actions().first()->menu()->actions()) {
      if (item->text() == text) return item;
    }
    ADD_FAILURE() << "no menu item " << text.toStdString();
    return nullptr;
  }
  void choose(const QString& text) {
    action(text)->trigger();
    settle();
  }
  /// Runs `step` once a modal window is up.
  template <typename Step>
  void onceModal(Step step) {
    auto* timer = new QTimer;
    QObject::connect(timer, &QTimer::timeout, [timer, step] {
      QWidget* box = QApplication::activeModalWidget();
      if (box == nullptr) return;
      timer->stop();
      timer->deleteLater();
      step(box);
    });
    timer->start(1);
  }
};

TEST_F(ShellWindowTest, TheMenuFollowsTheMode) {
  choose("Set a Puzzle for computer to solve");
  EXPECT_FALSE(action("Start a Solution")->isEnabled());
  click(cell(7), Qt::RightButton);
  const QImage image = picture();
  EXPECT_EQ(image.pixelColor(middleOf(cell(7)) + QPoint(-12, -12)), QColor(128, 0, 0));
  EXPECT_EQ(image.pixelColor(4 + 48 + 5, 4 + 32 + 5), QColor(128, 0, 0));
  answerBoxes(QMessageBox::Ok);
  click(game.form.Solveit);
  click(game.form.Solveit, Qt::RightButton);
  EXPECT_EQ(messages,
            (std::vector<std::string>{"TESSORO: set corner numbers first", "TESSORO: Help Here"}));
  for (const int corner : {1, 43, 49}) click(cell(corner), Qt::RightButton);
  click(game.form.Solveit);
  EXPECT_EQ(window->windowTitle(), "Puzzle Number  2");
  choose("End computer solution mode");
  EXPECT_EQ(action("Start a Solution")->isEnabled(), true);
  // Pressed inside, released outside: no click.
  QTest::mousePress(&window->view(), Qt::LeftButton, {}, middleOf(game.form.NewPuz));
  QTest::mouseRelease(&window->view(), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_EQ(window->windowTitle(), "Puzzle Number  2");
  click(game.form.NewPuz);
  EXPECT_EQ(window->windowTitle(), "Puzzle Number  3");
}

TEST_F(ShellWindowTest, TheAboutBoxClosesInItsThreeWays) {
  int shown = 0;
  const auto about = [&](auto close) {
    onceModal([&](QWidget* box) {
      ++shown;
      EXPECT_EQ(box->windowTitle(), "About Tessoro");
      EXPECT_EQ(box->size(), QSize(317, 97));
      auto* text = box->findChild<QTextEdit*>();
      EXPECT_EQ(text->toPlainText(),
                "\nTessoro, written by the Tessoro developers\ntessoro@example.org");
      EXPECT_LE(text->document()->size().height(), 70) << "nothing is cut";
      EXPECT_EQ(box->focusWidget(), box->findChild<QPushButton*>());
      close(box, text);
    });
    choose("About");
  };
  about([](QWidget* box, QTextEdit*) { QTest::keyClick(box, Qt::Key_Return); });
  about([](QWidget*, QTextEdit* text) {
    QTest::mousePress(text->viewport(), Qt::MiddleButton, {}, QPoint(9, 9));
  });
  about([](QWidget* box, QTextEdit*) { box->close(); });
  EXPECT_EQ(shown, 3);
}

TEST_F(ShellWindowTest, HelpIsReadBesideTheGame) {
  const auto helpWindow = []() -> qt::HelpWindow* {
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (auto* help = dynamic_cast<qt::HelpWindow*>(top)) return help;
    }
    return nullptr;
  };
  choose("Help");
  qt::HelpWindow* help = helpWindow();
  ASSERT_NE(help, nullptr);
  auto* text = help->findChild<QTextBrowser*>();
  const QString contents = text->toPlainText();
  EXPECT_TRUE(contents.contains("Tessoro"));
  text->setSource(QUrl("#playing"));
  EXPECT_TRUE(text->isBackwardAvailable());
  onceModal([&](QWidget* box) {
    EXPECT_TRUE(help->isVisible());
    QTest::keyClick(text, Qt::Key_PageDown);  // still takes input
    text->backward();
    EXPECT_FALSE(text->isBackwardAvailable());
    box->close();
  });
  choose("About");
  help->close();
  choose("Help");
  EXPECT_EQ(helpWindow(), help);
  EXPECT_TRUE(help->isVisible());
  click(cell(3));
  EXPECT_EQ(caption(3), "1");
}

TEST(HelpFileTest, WhatCannotBeShownIsSaidInOneSentence) {
  QTemporaryDir folder;
  const QString path = folder.filePath("some.hlp");
  qt::QtHelpViewer viewer({folder.path()});
  const AboutForm owner;
  const auto shown = [&](const std::optional<QByteArray>& content) {
    if (content) {
      QFile file(path);
      file.open(QIODevice::WriteOnly);
      file.write(*content);
    }
    viewer.WinHelpA(owner, "some.hlp", platform::HELP_CONTENTS, 0);
    for (QWidget* top : QApplication::topLevelWidgets()) {
      auto* browser = top->isVisible() ? top->findChild<QTextBrowser*>() : nullptr;
      if (browser != nullptr && dynamic_cast<qt::HelpWindow*>(top) != nullptr) {
        return browser->toPlainText().toStdString();
      }
    }
    return std::string();
  };
  for (QWidget* top : QApplication::topLevelWidgets()) top->hide();
  EXPECT_EQ(shown({}), "The help file \"some.hlp\" cannot be found.");
  EXPECT_EQ(shown(QByteArray(" \n")), "The help file \"some.hlp\" is empty.");
  EXPECT_EQ(shown(QByteArray("\x89PNG\r\n\0\1", 8)),
            "The help file \"some.hlp\" is damaged: it is not a text.");
  EXPECT_EQ(shown(QByteArray("<h1>Help</h1>")), "Help");
}

}  // namespace
}  // namespace tessoro::test
