#include "app/about_form.h"
#include "picture.h"

namespace tessoro::test {

TEST_F(PictureTest, TheMousePressesWhatItIsOverAndThatAloneIsRedrawn) {
  const std::map<QChar, const Cell*> places{
      {'b', &game.form.NewPuz}, {'h', &cell(9)}, {'n', &cell(17)}, {'s', &cell(0)}};
  // Mouse buttons, + pressed or - released, on "New Puzzle", a hole, a number or out of the window.
  for (const QString& step :
       QString("L+b L-h M+b M-b R+h L+b L-b R-b R+b L+h L-b R-b L+n R+s R-s L-s").split(' ')) {
    const auto button = static_cast<Qt::MouseButton>(1 << QString("LRM").indexOf(step[0]));
    const auto act = step[1] == '+' ? QTest::MousePress : QTest::MouseRelease;
    QTest::mouseEvent(act, window.windowHandle(), button, {}, inWindow(*places.at(step[2])));
  }
  EXPECT_EQ(game.form.caption() + ": " + caption(17) + caption(0), "Puzzle Number  1: 1");
  click(cell(18));
  key(Qt::Key_Space);
  view.repaint();
  const long drawn = view.drawnControls();
  key(Qt::Key_Space);
  screen(view);
  for (const auto* it : {"+", "*"}) cell(18).caption = it;
  settle();
  screen(view);
  EXPECT_EQ(view.drawnControls(), drawn + 1) << "not cell 19, which lies over its edge";
  std::vector<double> facts;
  cell(17).mouseDown = [&](const platform::MousePress& it) {
    facts.insert(facts.end(), {static_cast<double>(it.button), it.shift * 1.0, it.x, it.y});
  };
  const QPoint at = inWindow(cell(17)) + QPoint(1, 0);
  const auto all = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, at);
  QTest::mouseClick(window.windowHandle(), Qt::BackButton, all, at);
  EXPECT_EQ(facts, std::vector<double>({1, 0, 240, 225, 8, 7, 240, 225}));
}

TEST_F(WindowTest, ItGoesOnWhileAPuzzleIsMade) {
  bool during = false;
  QMetaObject::invokeMethod(&view, [&] { during = game.search.underWay(); }, Qt::QueuedConnection);
  game.form.NewPuz.click();
  EXPECT_TRUE(during);
}

TEST_F(WindowTest, ItStatesWhatItIsAndTakesBackBeingMaximised) {
  const QSize size = window.size();
  EXPECT_EQ(window.centralWidget()->size(), QSize(302, 310));
  EXPECT_EQ(QGuiApplication::desktopFileName() + QFont::substitute("MS Sans Serif"),
            "tessoro" + QApplication::font().family().toLower());
  EXPECT_EQ(window.windowFlags(), Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                      Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                                      Qt::WindowCloseButtonHint);
  EXPECT_EQ(window.windowIcon().availableSizes(), QList<QSize>({{32, 32}, {64, 64}, {128, 128}}));
  const auto maximise = [&] {  // as the toolkit's own title bars do; it takes any size from then on
    window.windowHandle()->setWindowStates(Qt::WindowMaximized);
    EXPECT_GT(window.maximumWidth(), size.width()) << "what some desktops insist on";
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
    const std::array act{QEvent::KeyPress, QEvent::KeyRelease};
    const std::array keys{Qt::Key_Space, Qt::Key_Return, Qt::Key_Alt, Qt::Key_Right, Qt::Key_J};
    // Keys, + pressed or - released, = at the time of the step before, as X servers repeat them.
    for (const QString& step : steps.split(' ')) {
      const int key = keys[QString("SRA>J").indexOf(step[0])];
      if (!step.endsWith('=')) ++time;
      QWindowSystemInterface::handleKeyEvent(to.windowHandle(), time, act[step[1] == '-'], key, {});
      settle();
    }
  };
  click(cell(17));
  send(window, "S+ S- S+= S- S+= S-");
  EXPECT_EQ(caption(17), "2") << "held down";
  send(window, ">+ >- >+= >- S+ S-");
  EXPECT_EQ(caption(18) + caption(19), "1") << "arrows go on";
  send(window, "A+ J+ J- A- A+");
  click(cell(19));
  send(window, "A-");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "Alt was for something else";
  for (int i = 0; i < 4; ++i) {
    QKeyEvent copy(i % 2 == 0 ? QEvent::KeyPress : QEvent::KeyRelease, Qt::Key_Space, {});
    QApplication::sendEvent(window.windowHandle(), &copy);
  }
  EXPECT_EQ(caption(19), "4") << "a screen reader passes on copies, which do not tell their time";

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
    QTest::qWait(1050);  // R has come up unnoticed, then
    send(*box, ">+ >- R- R+=");
    EXPECT_TRUE(box->isVisible()) << "a repeat";
    send(*box, "S+ S-");
    messages.push_back(box->isVisible() ? "open" : "closed");
    box->close();
  };
  since.start();
  click(game.form.Solveit);
  EXPECT_EQ(messages, std::vector<QString>{"closed"});
  onModal = [&](QWidget* box) {
    send(*box, "S+ S-");
    box->close();
  };
  choose("About");
}

/// These run again at each scale factor, as set by the environment.
using AppearanceTest = PictureTest;

/// Borders are the theme's, or the nearest shades that stand out as much as the usual theme's.
TEST_F(AppearanceTest, BordersStandOutInEveryThemeAndTextWhileABoxIsOpen) {
  click(cell(17));
  cell(17).borderleft = platform::palette[9];
  cell(17).borderright = platform::palette[12];
  game.form.Solveit.Visible = true;  // disabled, and in front of the other
  QWidget box;
  box.show();
  box.activateWindow();
  settle();
  EXPECT_FALSE(view.isActiveWindow());
  // Themes' button face, highlight and shadow, and a button's upper and lower border with them.
  for (const auto& [face, highlight, shadow, top, bottom] :
       std::vector<std::array<QRgb, 5>>{{0x9390ec, 0x9592ee, 0x8582de, 0xa29fee, 0x58568d},
                                        {0x083c01, 0x0c4005, 0x002600, 0x5c7f58, 0x4d7248},
                                        {0xf0e0d0, 0xfff8f0, 0x907860, 0xfff8f0, 0x907860}}) {
    QPalette theme{QColor(face)};
    theme.setColor(QPalette::Light, highlight);
    theme.setColor(QPalette::Dark, shadow);
    theme.setColor(QPalette::WindowText, 0x203060);
    theme.setColor(QPalette::Inactive, QPalette::WindowText, face);
    window.setPalette(theme);
    const QImage image = screen(view);
    EXPECT_EQ(image.pixel(QPoint(147, 272) * scale), QColor(top).rgb());
    EXPECT_EQ(image.pixel(QPoint(147, 293) * scale - QPoint(0, 1)), QColor(bottom).rgb());
  }
  EXPECT_EQ(fault(false), "");
}

TEST_F(AppearanceTest, TheAboutBoxShowsItsControlsAndClosesInItsThreeWays) {
  int shown = 0;
  onModal = [&](QWidget* box) {
    auto* text = box->findChild<QTextEdit*>();
    EXPECT_TRUE(box->windowTitle() == "About Tessoro" && !box->windowIcon().isNull());
    EXPECT_EQ(box->maximumSize(), QSize(317, 97));
    EXPECT_TRUE(text->isReadOnly() && text->document()->size().height() <= text->height());
    EXPECT_NEAR(text->font().pointSizeF() * text->logicalDpiY(), 7.8 * 96, 0.1);
    EXPECT_EQ(box->focusWidget()->font().toString(), text->font().toString());
    EXPECT_EQ(box->focusWidget()->geometry(), QRect(277, 40, 34, 25));
    settle();
    EXPECT_EQ(fault(AboutForm(), *text->parentWidget(), false), "");
    if (++shown == 1) return QTest::keyClick(box, Qt::Key_Return);
    for (auto* it : box->findChildren<QWidget*>()) it->setFocus();
    if (shown == 3) return void(box->close());
    QTest::mousePress(box->windowHandle(), Qt::RightButton, {}, text->geometry().center());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "not the text's own menu";
  };
  key(Qt::Key_Tab);
  for (int i = 0; i < 3; ++i) {
    menu.at("About")->trigger();
    EXPECT_EQ(shown, i) << "a client that chooses it does not wait";
    settle();
  }
  EXPECT_EQ(shown, 3);
}

}  // namespace tessoro::test
