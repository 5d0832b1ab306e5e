#include <iostream>
#include <random>

#include "game/invariants.h"
#include "listener.h"

namespace tessoro::test {

/// Somebody who uses the mouse, the keys and the actions of a screen reader at random.
struct WindowPlayerTest : ListeningTest {
  std::mt19937 random;
  QString done;  ///< the last event, in words
  QChar typed;   ///< the character that it has typed on what takes the focus
  int focusedCell = 0;
  QString lastSaid;
  int pressed = 0;  ///< the cell of the grid that it may have pressed
  bool ring = false;

  int below(qsizetype end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }
  auto anyOf(const auto& list) { return *(std::begin(list) + below(std::ssize(list))); }

  /// The grid's cell at a place of the client area; 0 for none.
  int cellAt(QPoint at) {
    int found = 0;
    for (int index = 1; index <= gridCells; ++index) {
      if (QRect(middleOf(cell(index)) - QPoint(15, 15), QSize(30, 30)).contains(at)) found = index;
    }
    return found;
  }
  void actAtRandom() {
    const QWidget* focused = QApplication::focusWidget();
    const bool takesFocus = focused->focusPolicy() != Qt::NoFocus;
    pressed = focusedCell = cellAt(focused->geometry().center());
    typed = QChar();
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
      key(it);
    } else if (kind < 17) {
      const QChar it = anyOf(QString("123456789+-*rctlnN"));
      done = QString("type ") + it;
      // The button is in no row or column; what only a client can give the focus takes nothing.
      if (focusedCell != 0 || (takesFocus && it != 'r' && it != 'c')) typed = it;
      if (it.isLetter()) pressed = 0;
      ring = ring || !typed.isNull();
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

  /// As it is spoken.
  QString words(int index) {
    static const std::map<QString, QString> signs{{"", "empty"}, {"?", "no value"}, {"=", "equals"},
                                                  {"+", "plus"}, {"-", "minus"},    {"*", "times"}};
    const QString shown = QString::fromStdString(caption(index));
    return signs.contains(shown) ? signs.at(shown) : shown;
  }
  /// Where nobody minds why a line has no value.
  static QString plain(QString text) {
    return text.replace(" is full, no digit", " has no value")
        .replace("no digit", "no value")
        .replace("not set", "no value");
  }
  /// What is to be heard of each corner, and of each line's value.
  QStringList standings() {
    QStringList list;
    for (int k = 1; k <= 4; ++k) {
      const QString name =
          QStringList{"top left", "top right", "bottom left", "bottom right"}[k - 1];
      list += game.form.board.NPict[k].Visible() ? name + " is correct"
              : cell(OuterCornerCells[k]).Visible()
                  ? name + " is wrong, target " + words(OuterCornerCells[k])
                  : "";
    }
    for (const int i : {7, 21, 35, 43, 45, 47, 49}) {
      const QString name = i == 49  ? "total"
                           : i < 43 ? QString("row %1").arg(i / 7)
                                    : QString("column %1").arg(i - 42);
      list += name + (caption(i) == "?" ? " has no value" : " is " + words(i));
    }
    return list;
  }
  QString line(const QString& name, int first, int step) {
    const bool ends = roleOf(first + 5 * step) == CellRole::equals;
    QStringList list;
    for (int i = 0; i < (ends ? 5 : 7); ++i) {
      if (roleOf(first + i * step) != CellRole::hole) list += words(first + i * step);
    }
    return name + list.join(ends ? " " : ", ");
  }
  /// What clients have read or been told so far, and what is there to be read.
  QString faultInNames() {
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
      const QString name = plain(at(cell(index))->text(QAccessible::Name));
      const QString right =
          words(index) + QString(", row %1 column %2").arg(rowOf(index)).arg(columnOf(index));
      if (!name.startsWith(right)) return name + " for " + right;
      if (at(cell(index))->state().disabled == cell(index).enabled()) return "state of " + name;
    }
    return "";
  }
  /// What is wrong with the sentence about the last event, by what was to be heard before it.
  QString faultInSentence(const QString& said, const QStringList& before, bool changed) {
    if (typed == 'l' && said != lastSaid) return "not the last: " + lastSaid;
    if (typed == 'r' || typed == 'c') {
      const bool row = typed == 'r';
      const QString right =
          focusedCell == 0 ? said
          : row ? line(QString("Row %1: ").arg(rowOf(focusedCell)), 7 * rowOf(focusedCell) - 6, 1)
                : line(QString("Column %1: ").arg(columnOf(focusedCell)), columnOf(focusedCell), 7);
      return said.startsWith(right) ? "" : "not " + right;
    }
    if (typed.isLetter() || pressed == 0) return "";
    if (roleOf(pressed) == CellRole::hole) return said;
    if (said.isEmpty()) return "nothing said";
    if (!changed || (game.state.SolveMode && cornerOf(pressed) == 0)) return "";
    if (!said.startsWith(words(pressed))) return "not what it shows";
    for (const QString& now : standings()) {
      if (!before.isEmpty() && !before.contains(now) && !said.contains(", " + now))
        return "not heard: " + now;
    }
    return "";
  }
};

TEST_F(WindowPlayerTest, WhatIsSeenReadAndSaidIsTheGame) {
  const int given = qEnvironmentVariableIntValue("TESSORO_SEED");
  const unsigned seed = given != 0 ? static_cast<unsigned>(given) : std::random_device{}();
  std::cout << "TESSORO_SEED=" << seed << '\n';
  random.seed(seed);
  lastSaid = plain(QString::fromStdString(game.narrator.firstPuzzle()));
  onModal = [this](QWidget* box) {
    const auto* label = box->findChild<QLabel*>("qt_msgbox_label");
    const QString name = label->accessibleName();
    told += "say " + name.chopped(label->text().size()).chopped(name == label->text() ? 0 : 2);
    dynamic_cast<QMessageBox*>(box)->buttons().first()->click();
  };
  Invariants invariants(game);
  for (int events = 0; events < 200; ++events) {
    const QString look = QString::fromStdString(Invariants::look(game));
    const QStringList before =
        caption(21).empty() || game.state.SolveMode ? QStringList() : standings();
    actAtRandom();
    SCOPED_TRACE((done + "\n" + look).toStdString());
    QStringList said = heard("say");
    const bool changed = QString::fromStdString(Invariants::look(game)) != look;
    EXPECT_EQ(invariants.broken(changed ? pressed : 0), "");
    EXPECT_EQ(fault(ring), "");
    EXPECT_EQ(faultInNames(), "");
    EXPECT_EQ(window.windowTitle(), QString::fromStdString(game.form.caption()));
    EXPECT_LE(said.size(), 1);
    EXPECT_EQ(faultInSentence(plain(said.value(0)), before, changed), "");
    if (!said.value(0).isEmpty()) lastSaid = plain(said[0]);
    ASSERT_FALSE(HasFailure()) << said.join("|").toStdString();
  }
}

}  // namespace tessoro::test
