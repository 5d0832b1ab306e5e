#include <set>

#include "window_fixture.h"

namespace tessoro::test {

/// The game as a screen reader meets it: through names, roles, states and actions alone.
struct AccessibilityTest : WindowTest {
  QAccessibleInterface* all = QAccessible::queryAccessibleInterface(&view);

  /// What is found at the middle of a control.
  QAccessibleInterface* at(const platform::Control& control) const {
    const QPoint middle = view.mapToGlobal(middleOf(control));
    return all->childAt(middle.x(), middle.y());
  }
  void act(const platform::Control& control, const QString& action) const {
    at(control)->actionInterface()->doAction(action);
    settle();
  }
};

TEST_F(AccessibilityTest, EveryControlReadsAsWhatItIs) {
  act(cell(17), "Decrease");
  for (const int index : {2, 4, 4, 16, 16, 16}) act(cell(index), "Press");
  std::set<std::string> readings;
  for (int i = 0; i < all->childCount(); ++i) {
    QAccessibleInterface* control = all->child(i);
    QString text = qAccessibleRoleString(control->role());
    text += ": " + control->text(QAccessible::Name);
    if (auto* actions = control->actionInterface()) text += " " + actions->actionNames().join("/");
    if (control->state().disabled) text += " (disabled)";
    if (control->state().invisible) text += " (invisible)";
    readings.insert(text.toStdString());
    EXPECT_EQ(all->indexOfChild(control), i);
  }
  EXPECT_EQ(readings.size(), 40U + 4 + 4 + 2 + 2) << "no holes; targets, faces, labels, buttons";
  for (const auto& reading : std::vector<std::string>{
           "Button: Row 1 column 1, " + caption(1) + "  (disabled)",
           "Button: Row 1 column 2, plus Press/Decrease",
           "Button: Row 1 column 3, empty Press/Decrease",
           "Button: Row 1 column 4, minus Press/Decrease",
           "Button: Row 3 column 2, times Press/Decrease",
           "Button: Row 3 column 3, 9 Press/Decrease",
           "StaticText: Row 3 column 6, equals  (disabled)",
           "StaticText: Row 3 column 7, no value  (disabled)",
           "StaticText: Top left target, " + caption(1) + " (disabled) (invisible)",
           "StaticText: Top right target, " + caption(51) + " (disabled)",
           "Graphic: Top left corner right", "Graphic: Top right corner right (invisible)",
           "StaticText: Get corner numbers right", "Button: New Puzzle Press",
           "Button: Solve Puzzle  (disabled) (invisible)"}) {
    EXPECT_EQ(readings.count(reading), 1U) << reading;
  }
  for (int index = 1; index <= gridCells; ++index) {
    if (roleOf(index) == CellRole::hole) continue;
    const QString name = QString("Row %1 column %2,").arg(rowOf(index)).arg(columnOf(index));
    EXPECT_TRUE(at(cell(index))->text(QAccessible::Name).startsWith(name)) << index;
    const QPoint start = view.mapToGlobal(middleOf(cell(index)) - QPoint(15, 15));
    EXPECT_EQ(at(cell(index))->rect(), QRect(start, QSize(30, 30))) << index;
  }
}

TEST_F(AccessibilityTest, APuzzleIsPlayedByActionsAloneButNotBehindABox) {
  onModal = [this, answer = onModal](QWidget* box) {
    act(game.form.NewPuz, "Press");
    choose("Set a Puzzle for computer to solve");
    answer(box);
  };
  playSolution([&](int index) { act(cell(index), "Press"); });
  EXPECT_EQ(messages, std::vector<QString>{"TESSORO: You got it !"});
  EXPECT_EQ(window.windowTitle(), "Puzzle Number  1");
  act(game.form.NewPuz, "Press");
  EXPECT_EQ(window.windowTitle(), "Puzzle Number  2");
}

}  // namespace tessoro::test
