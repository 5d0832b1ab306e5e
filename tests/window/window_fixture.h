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
  *out << '"' << text.toStdString() << '"';
}

namespace tessoro::test {

inline char* programPath = nullptr;

/// Digits that first make a puzzle with the corners 7, 1, 3 and 8, then random ones.
struct KnownDigits final : Digits {
  explicit KnownDigits(platform::Desktop& desktop) : random(desktop) {}
  int draw() override { return next < 9 ? "771534952"[next++] - '0' : random.draw(); }

  ReseededDigits random;
  int next = 0;
};

/// A modal box.
struct Box {
  QWidget& widget;

  QLabel* label() const {
    for (auto* it : widget.findChildren<QLabel*>())
      if (!it->text().isEmpty()) return it;
    return nullptr;
  }
  /// Returns OK or Yes.
  QPushButton* firstButton() const { return widget.findChild<QPushButton*>(); }
};

/// The program in a window, started as main() does: it makes the first puzzle before the window.
/// Each test has a desktop of its own, so no key is held and no box is open.
struct WindowTest : testing::Test {
  qt::QtDesktop desktop{programPath, program()};
  KnownDigits digits{desktop};
  Game game{desktop, digits};
  qt::FormWindow& window = start();
  qt::FormView& view = window.view();
  QStringList boxes;  ///< the texts of the boxes that have opened
  /// Answers the modal box that has opened.
  std::function<void(Box)> onBox = [](Box box) { box.firstButton()->click(); };
  ulong time = 1000;  ///< of the keyboard, milliseconds
  QTimer watch;

  WindowTest() {
    desktop.keyGuard().clock = [this] { return static_cast<qint64>(time); };
    QTimer::connect(&watch, &QTimer::timeout, [this] {
      QWidget* modal = QApplication::activeModalWidget();
      if (modal == nullptr) return;
      watch.stop();
      settle();  // until it is active
      const QLabel* label = Box{*modal}.label();
      boxes += label == nullptr ? "" : label->text();
      onBox({*modal});
      watch.start();
    });
    watch.start(1);
    settle();
  }
  ~WindowTest() override { desktop.close(); }
  qt::FormWindow& start() {
    game.startUp.Form_Load();
    return desktop.show(game.form, game.narrator.firstPuzzle());
  }
  /// Processes all pending events and those that follow from them.
  static void settle() {
    for (int round = 0; round < 3; ++round) QApplication::processEvents();
  }

  Cell& cell(int index) { return game.form.board.GridDisp[index]; }
  QString caption(int index) { return QString::fromStdString(cell(index).caption()); }
  double zoom() const { return qRound(view.width() / 302.4 * 4) / 4.0; }
  /// Returns the place in the client area of a control of the frame, which begins at (60, 60)
  /// twips.
  QRect rectOf(const platform::Control& control) const {
    const auto edge = [this](int twips) { return qRound((60 + twips) / 15.0 * zoom()); };
    const auto& [left, top, width, height] = control.place;
    const QPoint end(edge(left + width), edge(top + height));
    return {QPoint(edge(left), edge(top)), end - QPoint(1, 1)};
  }
  /// Returns the control of the frame that has the focus; null if none.
  const platform::Control* focused() const {
    if (QApplication::focusWidget() == nullptr) return nullptr;
    for (const auto& it : game.form.Frame1.controls) {
      const auto* control =
          std::visit([](auto* pointer) -> platform::Control* { return pointer; }, it);
      const QRect place = QApplication::focusWidget()->geometry();
      if (control->Visible() && rectOf(*control) == place) return control;
    }
    return nullptr;
  }
  /// Returns the cell of the grid that has the focus; 0 if none.
  int focusedCell() {
    int index = gridCells;
    while (index > 0 && &cell(index) != focused()) --index;
    return index;
  }

  /// Opens a box and returns whether it is still open after `then`.
  bool staysOpen(const std::function<void()>& opens, const std::function<void(Box)>& then) {
    bool open = false;
    onBox = [&](Box box) {
      then(box);
      open = box.widget.isVisible();
      box.widget.close();
    };
    opens();
    EXPECT_FALSE(boxes.isEmpty()) << "no box has opened";
    return open;
  }

  void click(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(window.windowHandle(), button, {}, view.mapTo(&window, at));
  }
  void click(const platform::Control& control) { click(rectOf(control).center()); }
  void send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    settle();
    const QWidget* active = QApplication::activeWindow();
    QWindow* to = (active == nullptr ? &window : active)->windowHandle();
    QWindowSystemInterface::handleKeyEvent(to, time, type, key, modifiers, text);
    settle();
  }
  void press(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    ++time;
    send(QEvent::KeyPress, key, modifiers, text);
  }
  void release(int key, Qt::KeyboardModifiers modifiers = {}) {
    ++time;
    send(QEvent::KeyRelease, key, modifiers, {});
  }
  void tap(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    press(key, modifiers, text);
    release(key, modifiers);
  }
  void type(const QString& characters) {
    for (const QChar it : characters)
      tap(it.toUpper().unicode(), it.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, it);
  }
  void choose(const QString& command) const {
    for (QAction* it : window.findChild<QMenu*>()->actions())
      if (it->text() == command) it->trigger();
    settle();
  }
};

}  // namespace tessoro::test
