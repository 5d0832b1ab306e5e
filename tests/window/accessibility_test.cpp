#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <map>

#include "window_fixture.h"

namespace tessoro::test {
namespace {

/// The game as a screen reader meets it: through names, roles, states and actions alone.
class AccessibilityTest : public WindowTest {
 protected:
  std::map<std::string, QAccessibleInterface*> controls;  ///< by the part of the name that stays

  void SetUp() override {
    WindowTest::SetUp();
    QAccessibleInterface* view = QAccessible::queryAccessibleInterface(&window->view());
    for (int i = 0; i < view->childCount(); ++i) {
      QAccessibleInterface* control = view->child(i);
      EXPECT_EQ(view->indexOfChild(control), i);
      controls[keyOf(name(*control))] = control;
    }
  }
  static std::string name(QAccessibleInterface& control) {
    return control.text(QAccessible::Name).toStdString();
  }
  static std::string keyOf(const std::string& name) { return name.substr(0, name.find(',')); }
  static std::string cellKey(int index) {
    return "Row " + std::to_string(rowOf(index)) + " column " + std::to_string(columnOf(index));
  }
  static void act(QAccessibleInterface& control, const QString& action) {
    control.actionInterface()->doAction(action);
    settle();
  }
  static QStringList actions(QAccessibleInterface& control) {
    auto* interface = control.actionInterface();
    return interface == nullptr ? QStringList() : interface->actionNames();
  }
  /// Presses a cell until its name ends in the words.
  void turnTo(int index, const std::string& words) {
    QAccessibleInterface& control = *controls.at(cellKey(index));
    const std::string wanted = cellKey(index) + ", " + words;
    for (int i = 0; i < 10 && name(control) != wanted; ++i) act(control, "Press");
  }
};

TEST_F(AccessibilityTest, EveryControlReadsAsWhatItIs) {
  EXPECT_EQ(controls.size(), 40U + 4 + 4 + 2 + 2)
      << "cells but no holes, targets, faces, labels, buttons";
  const auto& first = *controls.at("Row 1 column 1");
  EXPECT_EQ(controls.at("Row 1 column 1")->text(QAccessible::Name).toStdString(),
            "Row 1 column 1, " + caption(1));
  EXPECT_TRUE(first.role() == QAccessible::Button && first.state().disabled);
  EXPECT_EQ(name(*controls.at("Row 3 column 3")), "Row 3 column 3, empty");
  EXPECT_EQ(name(*controls.at("Row 7 column 6")), "Row 7 column 6, equals");
  EXPECT_EQ(controls.at("Row 3 column 7")->role(), QAccessible::StaticText);
  EXPECT_EQ(controls.at("Get corner numbers right")->role(), QAccessible::StaticText);
  EXPECT_TRUE(controls.at("Top left target")->state().invisible);
  EXPECT_EQ(controls.at("Top left corner right")->role(), QAccessible::Graphic);
  EXPECT_EQ(actions(*controls.at("Row 3 column 3")), (QStringList{"Press", "Decrease"}));
  EXPECT_EQ(actions(*controls.at("New Puzzle")), QStringList{"Press"});
  for (const auto* silent :
       {"Row 1 column 1", "Row 1 column 6", "Row 1 column 7", "Solve Puzzle"}) {
    EXPECT_TRUE(actions(*controls.at(silent)).isEmpty()) << silent;
  }
  const QRect place = controls.at("Row 3 column 3")->rect();
  EXPECT_EQ(place.size(), QSize(30, 30));
  EXPECT_EQ(window->view().mapFromGlobal(place.center()), middleOf(cell(17)) - QPoint(1, 1));
  QAccessibleInterface* view = QAccessible::queryAccessibleInterface(&window->view());
  EXPECT_EQ(view->childAt(place.center().x(), place.center().y()), controls.at("Row 3 column 3"));

  act(*controls.at("Row 3 column 3"), "Decrease");
  EXPECT_EQ(name(*controls.at("Row 3 column 3")), "Row 3 column 3, 9");
  EXPECT_EQ(name(*controls.at("Row 3 column 7")), "Row 3 column 7, no value");
  EXPECT_EQ(name(*controls.at("Top right target")), "Top right target, " + caption(51));
  EXPECT_FALSE(controls.at("Top left corner right")->state().invisible);
}

TEST_F(AccessibilityTest, APuzzleIsPlayedByActionsAlone) {
  answerBoxes(QMessageBox::Ok);
  const std::map<std::string, std::string> words{{"+", "plus"}, {"-", "minus"}, {"*", "times"}};
  for (int k = 1; k <= 16 && messages.empty(); ++k) {
    turnTo(operatorCells[k], words.at(game.state.SolOperators[k]));
    if (cell(numberCells[k]).enabled()) {
      turnTo(numberCells[k], std::string(trimmed(game.state.SolNumbers[k])));
    }
  }
  EXPECT_EQ(messages, std::vector<std::string>{"TESSORO: You got it !"});
  for (const auto* corner : {"Top left", "Top right", "Bottom left", "Bottom right"}) {
    EXPECT_FALSE(controls.at(std::string(corner) + " corner right")->state().invisible);
  }
  const std::string title = window->windowTitle().toStdString();
  act(*controls.at("New Puzzle"), "Press");
  EXPECT_NE(window->windowTitle().toStdString(), title);
}

TEST_F(AccessibilityTest, ABoxKeepsActionsAwayAndTheMenuSetsPuzzles) {
  QAction* mode = window->menuBar()->actions().first()->menu()->actions().at(3);
  QAccessibleInterface& cell17 = *controls.at("Row 3 column 3");
  QTimer::singleShot(0, [&] {
    act(cell17, "Press");
    mode->trigger();
    settle();
    QApplication::activeModalWidget()->close();
  });
  theDesktop->messageBox("Help Here", platform::Desktop::Buttons::ok);
  settle();
  EXPECT_EQ(name(cell17), "Row 3 column 3, empty");
  EXPECT_FALSE(game.state.SolveMode);

  mode->trigger();
  settle();
  QAccessibleInterface& corner = *controls.at("Row 7 column 7");
  EXPECT_EQ(name(corner), "Row 7 column 7, no value");
  act(corner, "Press");
  EXPECT_EQ(name(corner), "Row 7 column 7, 1");
  EXPECT_EQ(actions(*controls.at("Solve Puzzle")), (QStringList{"Press", "Help Here"}));
  answerBoxes(QMessageBox::Ok);
  act(*controls.at("Solve Puzzle"), "Help Here");
  EXPECT_EQ(messages, std::vector<std::string>{"TESSORO: Help Here"});
  EXPECT_TRUE(actions(*controls.at("New Puzzle")).isEmpty()) << "hidden";
}

}  // namespace
}  // namespace tessoro::test
