#include <random>

#include "game/invariants.h"
#include "listener.h"

namespace tessoro::test {

/// Somebody who uses the mouse, the keys and the actions of a screen reader at random.
struct WindowPlayerTest : ListeningTest {
  std::mt19937 random{std::random_device{}()};
  QString done;     ///< the last event, in words
  int pressed = 0;  ///< the cell of the grid that it may have pressed
  bool ring = false;

  int below(qsizetype end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }
  auto anyOf(const auto& list) { return *(std::begin(list) + below(std::ssize(list))); }

  void actAtRandom() {
    const bool takesFocus = QApplication::focusWidget()->focusPolicy() != Qt::NoFocus;
    const int from = pressed = focusedCell();
    if (const int kind = below(20); kind < 8) {
      const QPoint point(below(view.width()), below(view.height()));
      done = "click " + QDebug::toString(point);
      pressed = cellAt(point);
      ring = false;
      const auto button = anyOf(std::array{Qt::LeftButton, Qt::RightButton, Qt::MiddleButton});
      QTest::mouseClick(window.windowHandle(), button, {}, view.mapTo(&window, point));
    } else if (kind < 12) {
      const int number = below(7);
      const auto it = std::array{Qt::Key_Space, Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Left,
                                 Qt::Key_Down,  Qt::Key_End,    Qt::Key_Tab}[number];
      done = QDebug::toString(it);
      if (number > 2) pressed = 0;
      ring = true;
      key(it);
    } else if (kind < 17) {
      const QChar it = anyOf(QString("123456789+-*rctlnN"));
      done = QString("type ") + it;
      // The button is in no row or column; what only a client can give the focus takes nothing.
      ring = ring || from != 0 || (takesFocus && it != 'r' && it != 'c');
      if (it.isLetter()) pressed = 0;
      type(it);
    } else if (kind < 19) {
      QAccessibleInterface* control = all->child(below(all->childCount()));
      const QString action = anyOf(control->actionInterface()->actionNames() << "SetFocus");
      done = action + " " + control->text(QAccessible::Name);
      const QPoint middle = dynamic_cast<QWidget*>(control->object())->geometry().center();
      pressed = action == "SetFocus" ? 0 : cellAt(middle);
      if (!control->state().invisible) control->actionInterface()->doAction(action);
    } else {
      done = anyOf(
          QStringList{"Start a Solution", "Show Solution", "Set a Puzzle for computer to solve"});
      pressed = 0;
      choose(done);
    }
    settle();
    window.activateWindow();  // as a window manager does when a box closes
  }
};

TEST_F(WindowPlayerTest, WhatIsSeenReadAndSaidIsTheGame) {
  onModal = [](QWidget* box) {
    const auto* label = box->findChild<QLabel*>("qt_msgbox_label");
    const QString name = label->accessibleName();
    told += "say " + name.chopped(label->text().size()).chopped(name == label->text() ? 0 : 2);
    dynamic_cast<QMessageBox*>(box)->buttons().first()->click();
  };
  Invariants invariants(game);
  for (int events = 0; events < 200; ++events) {
    const std::string look = Invariants::look(game);
    actAtRandom();
    SCOPED_TRACE(done.toStdString() + "\n" + look);
    const QStringList said = heard("say");
    const bool changed = Invariants::look(game) != look;
    EXPECT_EQ(invariants.broken(changed ? pressed : 0, said.value(0).toStdString()), "");
    EXPECT_EQ(fault(ring), "");
    for (int i = 0; i < all->childCount(); ++i) {
      const QString name = all->child(i)->text(QAccessible::Name);
      EXPECT_TRUE(all->child(i)->state().invisible || knownNames[all->child(i)->object()] == name)
          << "not told of " << name.toStdString();
    }
    EXPECT_EQ(window.windowTitle(), QString::fromStdString(game.form.caption()));
    EXPECT_LE(said.size(), 1);
    EXPECT_FALSE(pressed != 0 && roleOf(pressed) != CellRole::hole && said.isEmpty());
    ASSERT_FALSE(HasFailure()) << said.join("|").toStdString();
  }
}

}  // namespace tessoro::test
