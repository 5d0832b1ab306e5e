#include "listener.h"

namespace tessoro::test {

using AccessibilityTest = ListeningTest;

TEST_F(AccessibilityTest, TheBoardReadsAsWhatItIs) {
  act(cell(17), "Decrease");
  const std::string target = caption(51);
  for (const auto& [control, reading] : std::map<const platform::Control*, std::string>{
           {&cell(3), "Button: empty, row 1 column 3 [Press/Decrease/SetFocus]"},
           {&cell(7),
            "Button: no value, row 1 column 7, target " + target + " [SetFocus] disabled"},
           {&cell(16), "Button: empty, row 3 column 2 [Press/SetFocus]"},
           {&cell(51), "StaticText: top right target " + target + " [] disabled"},
           {&game.form.board.NPict[1], "Graphic: top left correct []"},
           {&game.form.NewPuz, "Button: New Puzzle [Press/SetFocus]"}}) {
    QAccessibleInterface* it = at(*control);
    const QString actions = it->actionInterface()->actionNames().join("/");
    EXPECT_EQ(QString("%1: %2 [%3]%4")
                  .arg(qAccessibleRoleString(it->role()), it->text(QAccessible::Name), actions,
                       it->state().disabled ? " disabled" : ""),
              QString::fromStdString(reading));
    act(*control, "SetFocus");
    key(control == &game.form.NewPuz ? Qt::Key_Backspace : Qt::Key_Space);  // which only cells take
    type("c");
    EXPECT_EQ(window.windowTitle(), "Puzzle Number  1");
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
  at(cell(17))->actionInterface()->doAction("Decrease");
  EXPECT_EQ(caption(17), "2") << "a client does not wait";
  for (const auto* it : {"one", "two"}) theDesktop->announce(it);
  EXPECT_EQ(heard("say"), QStringList({"2", "one", "two", "1"}));

  choose("Set a Puzzle for computer to solve");
  EXPECT_TRUE(told.contains("Focus empty, row 3 column 3")) << "where the menu leaves it";
  EXPECT_FALSE(told.filter(QRegularExpression("^StateChanged .*row 1 column 7")).isEmpty());
  EXPECT_TRUE(told.contains("ObjectHide New Puzzle") && told.contains("ObjectShow Solve Puzzle"));
  EXPECT_TRUE(told.contains("ObjectHide top left correct"));
  EXPECT_EQ(heard("say"), QStringList("Set each corner to its number, then press Solve Puzzle"));
  EXPECT_EQ(menu.at("Set a Puzzle for computer to solve")->text(), "End computer solution mode");
  EXPECT_FALSE(menu.at("Start a Solution")->isEnabled() || menu.contains("-"));
  for (const auto opening : {Qt::Key_F10, Qt::Key_Alt}) {
    key(opening);
    EXPECT_NE(dynamic_cast<QMenu&>(*QApplication::activePopupWidget()).activeAction(), nullptr);
    key(Qt::Key_Escape);
  }
  key(Qt::Key_Tab);
  choose("Set a Puzzle for computer to solve");
  EXPECT_EQ(heard("Focus").count("New Puzzle"), 1) << "it is where the other button was";
}

TEST_F(AccessibilityTest, KeysLeadThroughTheGrid) {
  click(cell(17));
  QString visited;
  for (const QString& way :
       QString("Down Right Up Left End Home Ctrl+End Ctrl+Home Tab Up Ctrl+Down Left").split(' ')) {
    const QKeyCombination it = QKeySequence(way)[0];
    key(it.key(), it.keyboardModifiers());
    visited += QString::number(focusedCell()) + ' ';
  }
  EXPECT_EQ(visited, "24 26 19 18 21 15 49 1 0 1 1 1 ");
  EXPECT_EQ(heard("say").filter("board"), QStringList("Edge of the board"));
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
  EXPECT_TRUE(heard("Focus").contains("Contents"));
  key(Qt::Key_Escape);
  EXPECT_FALSE(help->isVisible());
}

TEST_F(AccessibilityTest, TheLastMoveIsReadOutWithTheBoxAndTheNextPuzzleAtOnce) {
  QString last;
  onModal = [this, &last, answer = onModal](QWidget* box) {
    last = box->findChild<QLabel*>("qt_msgbox_label")->accessibleName();
    act(cell(17), "Press");
    key(Qt::Key_Space);
    choose("Set a Puzzle for computer to solve");
    answer(box);
  };
  for (int k = 1; k <= 16; ++k) {
    cell(numberCells[k]).SetFocus();
    type(QString::fromStdString(game.state.SolNumbers[k].substr(1)));
    cell(operatorCells[k]).SetFocus();
    type(QString::fromStdString(game.state.SolOperators[k]));
  }
  EXPECT_EQ(messages, std::vector<QString>{"TESSORO: You got it !"});
  EXPECT_TRUE(last.endsWith("is correct. You got it !")) << last.toStdString();
  EXPECT_FALSE(last.startsWith(heard("say").last())) << "it is not said twice";
  key(Qt::Key_Space);
  EXPECT_EQ(heard("say"), QStringList("The puzzle is over"));
  for (const auto it : {Qt::Key_Tab, Qt::Key_Space}) key(it);
  EXPECT_TRUE(told.filter(QRegularExpression("target $")).isEmpty()) << "of a board in between";
  EXPECT_FALSE(told.contains("NameChanged Puzzle Number  2")) << "it is in the sentence";
  EXPECT_TRUE(heard("say").value(0).startsWith("Puzzle 2. Corners: top left "));
}

}  // namespace tessoro::test
