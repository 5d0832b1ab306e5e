#pragma once

#include <gtest/gtest.h>

#include <qpa/qwindowsysteminterface.h>

#include <QtTest>
#include <QtWidgets>

#include "app/game.h"
#include "program.h"
#include "qt/form_view.h"
#include "qt/form_window.h"

inline void PrintTo(const QString& text, std::ostream* out) {
  *out << text.toStdString();
}

namespace tessoro::test {

/// The one desktop of the test program: the toolkit allows one application object in a process.
inline qt::QtDesktop* theDesktop = nullptr;

/// The game in a real window of the toolkit.
struct WindowTest : testing::Test {
  ReseededDigits digits{*theDesktop};
  Game game{*theDesktop, digits};
  qt::FormWindow& window = theDesktop->show(game.form, "Welcome");
  qt::FormView& view = window.view();
  std::map<QString, QAction*> menu;  ///< its commands by the captions that they have at first
  std::vector<QString> messages;
  /// Works the modal box that has come up; as it stands, answers a message with OK or Yes.
  std::function<void(QWidget*)> onModal = [this](QWidget* modal) {
    auto* box = dynamic_cast<QMessageBox*>(modal);
    messages.push_back(box->windowTitle() + ": " + box->text());
    EXPECT_EQ(box->buttons().size(), 1 + box->text().contains(QRegularExpression("^Print|[?]$")));
    EXPECT_EQ(box->defaultButton(), box->buttons().first());
    EXPECT_GE(box->width(), 206) << "has room for its title";
    const auto flags = Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
    EXPECT_EQ(box->windowFlags() & (Qt::WindowType_Mask | flags), Qt::Dialog | flags);
    box->buttons().first()->click();
  };
  QTimer watch;

  WindowTest() {
    QTimer::connect(&watch, &QTimer::timeout, [this] {
      watch.stop();
      if (QWidget* modal = QApplication::activeModalWidget()) onModal(modal);
      watch.start();
    });
    watch.start(1);
    for (QAction* it : window.findChild<QMenu*>()->actions()) menu[it->text()] = it;
    game.startUp.Form_Load();
    settle();
  }
  ~WindowTest() override {
    theDesktop->close();
    // Nobody listens any more.
    for (auto* it : {&game.form.caption, &game.form.SolveMx.caption, &cell(17).caption}) *it = "!";
    cell(17).SetFocus();
  }

  /// Has all events processed, also those that others bring about.
  static void settle() {
    for (int round = 0; round < 3; ++round) QApplication::processEvents();
  }
  Cell& cell(int index) { return game.form.board.GridDisp[index]; }
  const std::string& caption(int index) { return cell(index).caption(); }
  /// The middle of a control in the client area, where the frame begins at (4, 4).
  static QPoint middleOf(const platform::Control& control) {
    const platform::Place& place = control.place;
    return {4 + (place.left + place.width / 2) / 15, 4 + (place.top + place.height / 2) / 15};
  }
  /// The grid's cell at a place of the client area; 0 for none, and near the edges, where a
  /// neighbour or a face may lie over it.
  int cellAt(QPoint at) {
    int index = gridCells;
    const QRect place(-12, -12, 24, 24);
    while (index > 0 && !place.contains(at - middleOf(cell(index)))) --index;
    return index;
  }
  int focusedCell() { return cellAt(QApplication::focusWidget()->geometry().center()); }
  QPoint inWindow(const platform::Control& control) const {
    return view.mapTo(&window, middleOf(control));
  }
  void click(const platform::Control& control) {
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, inWindow(control));
  }
  /// Presses and releases a key in the window with the focus, each at a time of its own.
  void key(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) const {
    static ulong time = 0;
    settle();
    const QWidget* active = QApplication::activeWindow();
    QWindow* to = (active == nullptr ? &window : active)->windowHandle();
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QApplication::postEvent(to, new QEvent(QEvent::User));  // something always goes on
      QWindowSystemInterface::handleKeyEvent(to, ++time, type, key, modifiers, text);
      settle();
    }
  }
  void type(const QString& characters) const {
    for (const QChar it : characters)
      key(it.toUpper().unicode(), it.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, it);
  }
  void choose(const QString& command) {
    menu.at(command)->trigger();
    settle();
  }
};

}  // namespace tessoro::test
