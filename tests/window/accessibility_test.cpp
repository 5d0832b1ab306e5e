#include <set>

#include "listener.h"

namespace tessoro::test {

struct AccessibilityTest : ListeningTest {
  /// Presses the key and tells where the focus goes.
  QString focusAfter(Qt::Key pressed) {
    key(pressed);
    return heard("Focus").join("|");
  }
};

TEST_F(AccessibilityTest, EveryControlReadsAsWhatItIs) {
  act(cell(17), "Decrease");
  for (const int index : {2, 4, 4, 16, 16, 16}) act(cell(index), "Press");
  std::multiset<std::string> readings;
  for (int i = 0; i < all->childCount(); ++i) {
    QAccessibleInterface* control = all->child(i);
    QString text = qAccessibleRoleString(control->role());
    text += ": " + control->text(QAccessible::Name);
    text += " [" + control->actionInterface()->actionNames().join("/") + "]";
    if (control->state().disabled) text += " disabled";
    if (control->state().invisible) text += " invisible";
    readings.insert(text.toStdString());
  }
  EXPECT_EQ(readings.size(), 40U + 4 + 4 + 2 + 2) << "no holes; targets, faces, labels, buttons";
  const std::string topLeft = caption(50), topRight = caption(51);
  for (const auto& reading : std::vector<std::string>{
           "Button: " + topLeft + ", row 1 column 1, correct [SetFocus] disabled",
           "Button: plus, row 1 column 2 [Press/SetFocus]",
           "Button: times, row 3 column 2 [Press/SetFocus]",
           "Button: 9, row 3 column 3 [Press/Decrease/SetFocus]",
           "StaticText: equals, row 3 column 6 [SetFocus] disabled",
           "StaticText: no value, row 3 column 7 [SetFocus] disabled",
           "StaticText: top left target " + topLeft + " [] disabled invisible",
           "StaticText: top right target " + topRight + " [] disabled",
           "Graphic: top left correct []", "Graphic: top right correct [] invisible",
           "StaticText: Get corner numbers right []", "Button: New Puzzle [Press/SetFocus]",
           "Button: Solve Puzzle [SetFocus] disabled invisible"}) {
    EXPECT_EQ(readings.count(reading), 1U) << reading;
  }
  for (int index = 1; index <= gridCells; ++index) {
    if (roleOf(index) == CellRole::hole) continue;
    const QPoint start = view.mapToGlobal(middleOf(cell(index)) - QPoint(15, 15));
    EXPECT_EQ(at(cell(index))->rect(), QRect(start, QSize(30, 30))) << index;
  }
}

TEST_F(AccessibilityTest, ClientsAreToldWhatChangesAndHearOneSentenceAPress) {
  click(cell(17));
  EXPECT_EQ(heard("say"),
            QStringList("1, no line has a value yet, corners to get right: top right, bottom "
                        "left, bottom right"));
  act(cell(17), "Press");
  EXPECT_TRUE(told.contains("say 2"));
  EXPECT_TRUE(told.contains((announces ? "Focus" : "NameChanged") + QString(" 2, row 3 column 3")))
      << "newer screen readers would read out a new name of the focus";
  act(cell(18), "Press");
  EXPECT_TRUE(told.contains("NameChanged plus, row 3 column 4"));
  key(Qt::Key_Space);
  EXPECT_EQ(heard("say"), QStringList({"2", "plus", "3"}));
  type("-+");
  EXPECT_EQ(heard("say"), QStringList({"2", "3"}));
  at(cell(17))->actionInterface()->doAction("Decrease");
  EXPECT_EQ(caption(17), "3") << "a client does not wait";
  for (const auto* it : {"one", "two"}) theDesktop->announce(it);
  EXPECT_EQ(heard("say"), QStringList({"one", "two", "2"}));

  choose("Set a Puzzle for computer to solve");
  EXPECT_TRUE(told.contains("Focus empty, row 3 column 3")) << "where the menu leaves it";
  EXPECT_TRUE(told.contains("ObjectHide New Puzzle") && told.contains("ObjectShow Solve Puzzle"));
  EXPECT_TRUE(told.contains("ObjectHide top left correct") &&
              told.contains("ObjectHide top right target " + QString::fromStdString(caption(51))));
  EXPECT_TRUE(told.contains("StateChanged not set, row 1 column 1"));
  EXPECT_EQ(heard("say"), QStringList("Set each corner to its number, then press Solve Puzzle"));
  EXPECT_EQ(menu.at("Set a Puzzle for computer to solve")->text(), "End computer solution mode");
  EXPECT_FALSE(menu.at("Start a Solution")->isEnabled() || menu.contains("-"));
  key(Qt::Key_F10);
  EXPECT_NE(dynamic_cast<QMenu&>(*QApplication::activePopupWidget()).activeAction(), nullptr);
  for (const auto it : {Qt::Key_Escape, Qt::Key_Tab}) key(it);
  choose("Set a Puzzle for computer to solve");
  EXPECT_EQ(heard("Focus").count("New Puzzle"), 1) << "it is where the other button was";
}

TEST_F(AccessibilityTest, ArrowsGoThroughTheBoardAndTabBetweenItAndTheButton) {
  EXPECT_TRUE(QApplication::focusWidget()->geometry().contains(middleOf(cell(1))));
  const std::map<QChar, Qt::Key> arrows{
      {'L', Qt::Key_Left}, {'R', Qt::Key_Right}, {'U', Qt::Key_Up}, {'D', Qt::Key_Down}};
  // Each step with the row and column that it leads to; none at the edge.
  for (const QString& step :
       QString("L U R12 D32 L31 U21 R23 R25 R27 R U17 U L16 D36").split(' ')) {
    const QString focused = focusAfter(arrows.at(step[0]));
    const QString place = step.size() == 1 ? "" : "row " + step.mid(1, 1) + " column " + step[2];
    EXPECT_EQ(focused.mid(focused.indexOf("row")), place) << step.toStdString();
  }
  EXPECT_EQ(focusAfter(Qt::Key_Tab), "New Puzzle");
  EXPECT_EQ(focusAfter(Qt::Key_Tab), "equals, row 3 column 6");
  EXPECT_EQ(focusAfter(Qt::Key_Backtab), "New Puzzle");
  click(cell(33), Qt::RightButton);
  EXPECT_EQ(heard("Focus").value(0), "empty, row 5 column 5");
  EXPECT_EQ(focusAfter(Qt::Key_Tab), "New Puzzle");
  EXPECT_EQ(focusAfter(Qt::Key_Tab), "9, row 5 column 5") << "the one pressed last";
  for (const Qt::Key opening : {Qt::Key_F10, Qt::Key_Alt}) {
    key(opening);
    QApplication::activePopupWidget()->close();
  }
}

TEST_F(AccessibilityTest, AboutAndHelpAreReadOut) {
  QString about;
  onModal = [&](QWidget* box) {
    about = announces ? heard("say").join("") : box->accessibleDescription();
    box->close();
  };
  choose("About");
  EXPECT_EQ(about, "Tessoro, written by the Tessoro developers. tessoro@example.org. Version 1.0");
  choose("Help");
  QWidget* help = QApplication::activeWindow();
  EXPECT_EQ(help->windowTitle(), "Tessoro Help");
  EXPECT_TRUE(heard("Focus").contains("Help"));
  for (const auto it : {Qt::Key_Tab, Qt::Key_Return}) key(it);
  EXPECT_EQ(heard("say"), QStringList({"the keys, link", "Playing by keys and by ear"}));
  const auto* text = help->findChild<QTextBrowser*>();
  EXPECT_EQ(text->textCursor().block().text().simplified(), "Playing by keys and by ear");
  EXPECT_TRUE(text->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard)) << "a caret";
  key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(heard("say"), QStringList("the keys, link")) << "where it was left";
  for (int i = 0; i < 99 && help->focusWidget() == text; ++i) key(Qt::Key_Tab);
  EXPECT_EQ(focusedName(), "Contents");
  key(Qt::Key_Escape);
  EXPECT_FALSE(help->isVisible());
}

TEST_F(AccessibilityTest, APuzzleIsPlayedByKeysAlone) {
  QString last;
  onModal = [this, &last, answer = onModal](QWidget* box) {
    last = box->findChild<QLabel*>("qt_msgbox_label")->accessibleName();
    act(cell(17), "Press");
    key(Qt::Key_Space);
    choose("Set a Puzzle for computer to solve");
    answer(box);
  };
  qsizetype typed = 0;
  for (; messages.empty() && typed < 24; ++typed) {
    type("n");
    const QRegularExpression place("row (\\d) column (\\d)");
    const QRegularExpressionMatch at = place.match(focusedName());
    const int index = (at.captured(1).toInt() - 1) * gridSide + at.captured(2).toInt();
    const auto number = std::ranges::find(numberCells, index) - numberCells.begin();
    const auto op = std::ranges::find(operatorCells, index) - operatorCells.begin();
    type(QString::fromStdString(number < 17 ? game.state.SolNumbers[number].substr(1)
                                            : game.state.SolOperators[op]));
  }
  EXPECT_EQ(messages, std::vector<QString>{"TESSORO: You got it !"});
  EXPECT_TRUE(last.endsWith("is correct. You got it !")) << last.toStdString();
  EXPECT_EQ(heard("say").size(), typed - 1) << "the last is read out with the box";
  key(Qt::Key_Space);
  EXPECT_EQ(heard("say"), QStringList("The puzzle is over"));
  for (const auto it : {Qt::Key_Tab, Qt::Key_Space}) key(it);
  settle();
  EXPECT_TRUE(told.filter(QRegularExpression("target $")).isEmpty()) << "of a board in between";
  EXPECT_FALSE(told.contains("NameChanged Puzzle Number  2")) << "it is in the sentence";
  EXPECT_TRUE(heard("say").value(0).startsWith("Puzzle 2. Corners: top left "));
}

}  // namespace tessoro::test
