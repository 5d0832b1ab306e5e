#include <random>

#include "game/invariants.h"
#include "listener.h"

namespace tessoro::test {

/// Somebody who uses the mouse, the keys and the actions of a screen reader at random.
struct WindowPlayerTest : ListeningTest {
  std::mt19937 random{std::random_device{}()};
  QString done;         ///< the last event, in words
  int pressed = 0;      ///< the cell of the grid that it may have pressed
  int startedFrom = 0;  ///< the cell of the grid that had the focus before it
  int ledTo = 0;        ///< the cell to which its key leads
  int gridFocus = 1;    ///< the cell that had the focus last
  bool ring = false;

  int below(qsizetype end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }
  auto anyOf(const auto& list) { return *(std::begin(list) + below(std::ssize(list))); }

  void actAtRandom() {
    const QWidget* focused = QApplication::focusWidget();
    const bool takesFocus = focused->focusPolicy() != Qt::NoFocus;
    pressed = startedFrom = focusedCell();
    if (startedFrom != 0) gridFocus = startedFrom;
    ledTo = 0;
    if (const int kind = below(20); kind < 8) {
      const QPoint point(below(view.width()), below(view.height()));
      done = "click " + QDebug::toString(point);
      pressed = cellAt(point);
      ring = false;
      const auto button = anyOf(std::array{Qt::LeftButton, Qt::RightButton, Qt::MiddleButton});
      QTest::mouseClick(window.windowHandle(), button, {}, view.mapTo(&window, point));
    } else if (kind < 12) {
      const auto it = anyOf(std::array{Qt::Key_Space, Qt::Key_Return, Qt::Key_Backspace,
                                       Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
                                       Qt::Key_Home, Qt::Key_End, Qt::Key_Tab});
      done = QDebug::toString(it);
      if (!std::set{Qt::Key_Space, Qt::Key_Return, Qt::Key_Backspace}.contains(it)) pressed = 0;
      ring = true;
      ledTo = wayFrom(startedFrom, it);
      // From the button, the only other control that takes the focus by itself, back to the grid.
      if (startedFrom == 0 && takesFocus && (it == Qt::Key_Up || it == Qt::Key_Tab))
        ledTo = gridFocus;
      key(it);
    } else if (kind < 17) {
      const QChar it = anyOf(QString("123456789+-*rctlnN"));
      done = QString("type ") + it;
      // The button is in no row or column; what only a client can give the focus takes nothing.
      ring = ring || startedFrom != 0 || (takesFocus && it != 'r' && it != 'c');
      if (it.isLetter()) pressed = 0;
      type(it);
    } else if (kind < 19) {
      QAccessibleInterface* control = all->child(below(all->childCount()));
      const QString action =
          anyOf(control->actionInterface()->actionNames() + QStringList("SetFocus"));
      done = action + " " + control->text(QAccessible::Name);
      pressed = action == "SetFocus"
                    ? 0
                    : cellAt(dynamic_cast<QWidget*>(control->object())->geometry().center());
      if (!control->state().invisible) control->actionInterface()->doAction(action);
    } else {
      done = anyOf(
          std::array{"Start a Solution", "Show Solution", "Set a Puzzle for computer to solve"});
      pressed = 0;
      choose(done);
    }
    settle();
    window.activateWindow();  // as a window manager does when a box closes
    settle();
  }

  /// The cell to which a key leads from another; 0 for keys that do not.
  static int wayFrom(int from, int key) {
    static const std::map<int, std::pair<int, bool>> steps{
        {Qt::Key_Left, {-1, false}}, {Qt::Key_Right, {1, false}}, {Qt::Key_Home, {-1, true}},
        {Qt::Key_Up, {-7, false}},   {Qt::Key_Down, {7, false}},  {Qt::Key_End, {1, true}}};
    if (from == 0 || !steps.contains(key)) return 0;
    const auto [step, toEdge] = steps.at(key);
    int to = from;
    for (int at = from + step; at >= 1 && at <= gridCells; at += step) {
      if (step % 7 != 0 && rowOf(at) != rowOf(from)) break;
      if (roleOf(at) == CellRole::hole) continue;
      to = at;
      if (!toEdge) break;
    }
    return to;
  }
  /// What clients have read or been told so far, and what is there to be read.
  QString faultInReading() {
    for (int i = 0; i < all->childCount(); ++i) {
      QAccessibleInterface* it = all->child(i);
      const QString name = it->text(QAccessible::Name);
      if (it->state().invisible) continue;
      if (knownNames[it->object()] != name) return "not told of " + name;
      if (knownDisabled[it->object()] != it->state().disabled)
        return "not told the state of " + name;
    }
    for (int index = 1; index <= gridCells; ++index) {
      if (roleOf(index) == CellRole::hole) continue;
      QAccessibleInterface* it = at(cell(index));
      const QString name = it->text(QAccessible::Name);
      const bool known = caption(index) != "?";
      const QString shown = QString::fromStdString(known ? spoken(caption(index)) : "");
      const QString place = QString(", row %1 column %2").arg(rowOf(index)).arg(columnOf(index));
      if (!name.startsWith(shown) || !name.contains(known ? shown + place : place)) return name;
      const bool isNumber = roleOf(index) == CellRole::number || cornerOf(index) != 0;
      const bool isSet = isNumber || roleOf(index) == CellRole::rowOperator ||
                         roleOf(index) == CellRole::columnOperator;
      if (it->role() != (isSet ? QAccessible::Button : QAccessible::StaticText))
        return "role of " + name;
      const QString actions = !cell(index).enabled() ? "" : isNumber ? "Press Decrease " : "Press ";
      if (it->actionInterface()->actionNames().join(' ') != actions + "SetFocus")
        return "actions of " + name;
      if (it->state().disabled == cell(index).enabled()) return "state of " + name;
    }
    return "";
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
    if (ledTo != 0) {
      EXPECT_EQ(said == QStringList("Edge of the board"), ledTo == startedFrom);
      EXPECT_EQ(focusedCell(), ledTo);
    }
    EXPECT_EQ(fault(ring), "");
    EXPECT_EQ(faultInReading(), "");
    EXPECT_EQ(window.windowTitle(), QString::fromStdString(game.form.caption()));
    EXPECT_LE(said.size(), 1);
    EXPECT_FALSE(pressed != 0 && roleOf(pressed) != CellRole::hole && said.isEmpty());
    ASSERT_FALSE(HasFailure()) << said.join("|").toStdString();
  }
}

}  // namespace tessoro::test
