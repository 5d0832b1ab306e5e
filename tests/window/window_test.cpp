#include "window_fixture.h"

namespace tessoro::test {

TEST_F(WindowTest, AButtonTakesAPressAndAReleaseOnItselfAndIsRedrawnAlone) {
  const std::map<QChar, const Cell*> places{
      {'b', &game.form.NewPuz}, {'h', &cell(9)}, {'n', &cell(17)}, {'s', &cell(0)}};
  // Mouse buttons, + pressed or - released, on "New Puzzle", a hole, a number or out of the window.
  for (const QString& step :
       QString("L+b L-h M+b M-b R+h L+b L-b R-b R+b L+h L-b R-b L+n R+s R-s L-s").split(' ')) {
    const auto button = static_cast<Qt::MouseButton>(1 << QString("LRM").indexOf(step[0]));
    const auto act = step[1] == '+' ? QTest::MousePress : QTest::MouseRelease;
    QTest::mouseEvent(act, window.windowHandle(), button, {}, inWindow(*places.at(step[2])));
  }
  EXPECT_EQ(window.windowTitle(), "Puzzle Number  1");
  EXPECT_EQ(caption(17) + caption(0), "1");
  settle();
  view.repaint();
  const long drawn = view.drawnControls();
  click(cell(17));
  EXPECT_TRUE(QTest::qWaitFor([&] { return view.drawnControls() > drawn; }));
  EXPECT_EQ(view.drawnControls(), drawn + 1);
  click(game.form.NewPuz);
  EXPECT_EQ(window.windowTitle(), "Puzzle Number  2");
}

TEST_F(WindowTest, BeingMaximisedIsTakenBackAndWhereADesktopInsistsTheBoardIsInTheMiddle) {
  const QSize size = window.size();
  EXPECT_EQ(view.size(), QSize(302, 310));
  EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint) &&
              window.minimumSize() == window.maximumSize() && !window.windowIcon().isNull());
  const auto maximise = [&] {  // as the toolkit's own title bars do; it takes any size from then on
    window.windowHandle()->setWindowStates(Qt::WindowMaximized);
    settle();
  };
  maximise();
  EXPECT_TRUE(window.size() == size && window.maximumSize() == size && !window.isMaximized());
  maximise();
  EXPECT_GT(window.width(), 2 * size.width());
  const QPoint middle = view.geometry().center() - view.parentWidget()->rect().center();
  EXPECT_LE(middle.manhattanLength(), 2);
  EXPECT_EXIT(window.close(), testing::ExitedWithCode(0), "");
}

TEST_F(WindowTest, KeysThatNobodyMeansDoNothing) {
  ulong time = 1UL << 30;
  const auto send = [&](QWidget& to, const QString& steps) {
    const std::array keys{Qt::Key_Space, Qt::Key_Return, Qt::Key_Alt, Qt::Key_Right, Qt::Key_J};
    // Keys, + pressed or - released, = at the time of the step before, as the X server repeats
    // them.
    for (const QString& step : steps.split(' ')) {
      const auto type = step[1] == '+' ? QEvent::KeyPress : QEvent::KeyRelease;
      const int key = keys[QString("SRA>J").indexOf(step[0])];
      if (!step.endsWith('=')) ++time;
      QWindowSystemInterface::handleKeyEvent(to.windowHandle(), time, type, key, {});
      settle();
    }
  };
  click(cell(17));
  send(window, "S+ S- S+= S- S+= S-");
  EXPECT_EQ(caption(17), "2") << "held down";
  send(window, ">+ >- >+= >- S+ S-");
  EXPECT_EQ(caption(18) + caption(19), "1") << "arrows go on";
  send(window, "A+ J+ J- A-");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "Alt was for something else";

  choose("Set a Puzzle for computer to solve");
  click(cell(17));
  QElapsedTimer since;
  onModal = [&](QWidget* box) {
    send(*box, "S+ S-");
    EXPECT_TRUE(box->isVisible() || since.elapsed() >= 500) << "it may not have been met yet";
    QTest::qWait(550);
    send(*box, "R- R+=");
    EXPECT_TRUE(box->isVisible()) << "held down since before the box";
    since.start();
    send(*box, "S+ S-");
    EXPECT_TRUE(box->isVisible() || since.elapsed() >= 500) << "another key is down";
    send(*box, "R- R+ R-");
    messages.push_back(box->isVisible() ? "open" : "closed");
    box->close();
  };
  since.start();
  click(game.form.Solveit);
  EXPECT_EQ(messages, std::vector<QString>{"closed"});
}

TEST_F(WindowTest, TheAboutBoxClosesInItsThreeWays) {
  int shown = 0;
  onModal = [&](QWidget* box) {
    auto* text = box->findChild<QTextEdit*>();
    EXPECT_EQ(box->windowTitle(), "About Tessoro");
    EXPECT_EQ(box->maximumSize(), QSize(317, 97));
    EXPECT_TRUE(text->isReadOnly() && text->document()->size().height() <= text->height());
    EXPECT_NEAR(text->font().pointSizeF() * text->logicalDpiY(), 7.8 * 96, 0.1);
    EXPECT_EQ(box->focusWidget()->font().toString(), text->font().toString());
    EXPECT_EQ(box->focusWidget()->geometry(), QRect(277, 40, 34, 25));
    if (++shown == 1) return QTest::keyClick(box, Qt::Key_Return);
    if (shown == 3) return void(box->close());
    QTest::mousePress(box->windowHandle(), Qt::RightButton, {}, text->geometry().center());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "not the text's own menu";
  };
  for (int i = 0; i < 3; ++i) {
    menu.at("About")->trigger();
    EXPECT_EQ(shown, i) << "a client that chooses it does not wait";
    settle();
  }
  EXPECT_EQ(shown, 3);
}

TEST_F(WindowTest, HelpIsReadBesideTheGame) {
  choose("Help");
  auto* help = &dynamic_cast<qt::HelpWindow&>(*QApplication::activeWindow());
  auto* text = help->findChild<QTextBrowser*>();
  const int top = text->verticalScrollBar()->value();
  const auto* bar = help->findChild<QToolBar*>();
  EXPECT_FALSE(bar->actions().at(1)->isEnabled() || bar->isMovable() ||
               help->windowIcon().isNull());
  EXPECT_EQ(bar->actions().at(1)->text(), "Back");
  onModal = [&](QWidget* box) {
    for (QAction* way : bar->actions()) {
      for (const auto it : {Qt::Key_Tab, Qt::Key_Return}) QTest::keyClick(help->windowHandle(), it);
      EXPECT_GT(text->verticalScrollBar()->value(), top) << "a link leads on";
      way->trigger();
      EXPECT_EQ(text->verticalScrollBar()->value(), top) << way->text().toStdString();
    }
    box->close();
  };
  choose("About");
  help->close();
  choose("Help");
  EXPECT_EQ(QApplication::activeWindow(), help);

  const QTemporaryDir folder;
  QFile file(folder.filePath("some.hlp"));
  const QString said = "The help file \"some.hlp\" ";
  for (const auto& [content, shown] :
       std::map<QByteArray, QString>{{{}, said + "cannot be found."},
                                     {" \n", said + "is empty."},
                                     {"\x89PNG", said + "is damaged: it is not a text."},
                                     {"<h1>Help</h1>", "Help"},
                                     {"<h1>New</h1>", "New"}}) {
    if (!content.isNull() && file.open(QIODevice::WriteOnly)) file.write(content);
    file.close();
    help->showContents(file.fileName());
    EXPECT_EQ(text->toPlainText(), shown);
  }
}

}  // namespace tessoro::test
