#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <random>

#include "game/invariants.h"
#include "picture.h"

namespace tessoro::test {

/// The game as it is met through a screen reader and the keys.
struct AccessibilityTest : PictureTest {
  /// What clients have been told: events, as "Focus NAME", and sentences, as "say SENTENCE".
  static inline QStringList told;
  /// The names as a client knows them that has not asked again since.
  static inline std::map<QObject*, QString> knownNames;
  static constexpr bool announces = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);
  QAccessibleInterface* all = QAccessible::queryAccessibleInterface(&view);

  AccessibilityTest() {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
    QAccessible::installUpdateHandler(hear);
    EXPECT_TRUE(heard("say").endsWith("Welcome")) << "said before there was a window";
    for (int i = 0; i < all->childCount(); ++i)
      knownNames[all->child(i)->object()] = all->child(i)->text(QAccessible::Name);
  }
  ~AccessibilityTest() override {
    QAccessible::installUpdateHandler(nullptr);
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(false);
  }
  static void hear(QAccessibleEvent* event) {
    // Nobody asks a widget for anything while it is destroyed.
    const auto* source =
        event->type() == QAccessible::ObjectDestroyed ? nullptr : event->accessibleInterface();
    if (source == nullptr) return;
    QString kind = qAccessibleEventString(event->type());
    QString text = source->text(QAccessible::Name);
    if (source->role() == QAccessible::Notification) kind = kind == "ObjectShow" ? "say" : "";
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (auto* announcement = dynamic_cast<QAccessibleAnnouncementEvent*>(event)) {
      kind = "say";
      text = announcement->message();
    }
#endif
    const auto* change = dynamic_cast<QAccessibleStateChangeEvent*>(event);
    if (change == nullptr || change->changedStates().disabled) told.append(kind + " " + text);
    if (QStringList{"ObjectShow", "NameChanged", "Focus"}.contains(kind))
      knownNames[source->object()] = text;
  }
  /// What has been told since the last call, of the kinds that begin so.
  static QStringList heard(const QString& kind) {
    settle();
    QStringList matching;
    for (const QString& it : std::exchange(told, {}))
      if (it.startsWith(kind)) matching += it.mid(kind.size() + 1);
    return matching;
  }
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

TEST_F(AccessibilityTest, TheBoardReadsAsWhatItIs) {
  act(cell(17), "Decrease");
  const QString target = caption(51).c_str();
  for (const auto& [control, reading] : std::map<const platform::Control*, QString>{
           {&cell(3), "Button: empty, row 1 column 3 [Press Decrease SetFocus]"},
           {&cell(7),
            "Button: no value, row 1 column 7, target " + target + " [SetFocus] disabled"},
           {&cell(51), "StaticText: top right target " + target + " [] disabled"},
           {&game.form.board.NPict[1], "Graphic: top left correct []"}}) {
    QAccessibleInterface* it = at(*control);
    EXPECT_EQ(QString(qAccessibleRoleString(it->role())) + ": " + it->text(QAccessible::Name) +
                  " [" + it->actionInterface()->actionNames().join(' ') +
                  (it->state().disabled ? "] disabled" : "]"),
              reading);
  }
}

TEST_F(AccessibilityTest, ClientsAreToldWhatChangesAndHearOneSentenceAPress) {
  click(cell(17));
  EXPECT_EQ(heard("say").join(""), "1, no line has a value yet");
  act(cell(17), "Press");
  EXPECT_TRUE(told.contains("say 2"));
  EXPECT_TRUE(told.contains((announces ? "Focus" : "NameChanged") + QString(" 2, row 3 column 3")));
  at(cell(17))->actionInterface()->doAction("Decrease");
  EXPECT_EQ(caption(17), "2") << "a client does not wait";
  for (const auto* it : {"one", "two"}) theDesktop->announce(it);
  EXPECT_EQ(heard("say"), QStringList({"2", "one", "two", "1"}));

  choose("Set a Puzzle for computer to solve");
  EXPECT_TRUE(told.contains("Focus empty, row 3 column 3")) << "where the menu leaves it";
  EXPECT_EQ(told.filter("StateChanged").filter("row 1").size(), 2);
  EXPECT_TRUE(told.contains("ObjectHide New Puzzle") && told.contains("ObjectShow Solve Puzzle"));
  EXPECT_TRUE(told.contains("ObjectHide top left correct"));
  EXPECT_EQ(heard("say"), QStringList("Set each corner to its number, then press Solve Puzzle"));
  act(cell(17), "Press");
  EXPECT_TRUE(told.contains("say Only corners are set in this mode") &&
              told.filter("Focus").isEmpty());
  EXPECT_FALSE(menu.at("Start a Solution")->isEnabled() || menu.size() != 8 || menu.contains("-"));
  for (const auto opening : {Qt::Key_F10, Qt::Key_Alt}) {
    key(opening);
    const auto& popup = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
    EXPECT_EQ(popup.activeAction()->text(), "End computer solution mode");
    key(Qt::Key_Escape);
    EXPECT_EQ(fault(true), "") << "back on the cell, and by keys";
  }
  key(Qt::Key_Alt, Qt::ControlModifier);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  key(Qt::Key_Tab);
  choose("Set a Puzzle for computer to solve");
  EXPECT_EQ(heard("Focus").count("New Puzzle"), 1) << "it is where the other button was";
}

TEST_F(AccessibilityTest, KeysLeadThroughTheGrid) {
  QString visited = QString::number(focusedCell()) + ' ';
  click(cell(17));
  for (const QString& way :
       QString("Down Right Up Left End Home Ctrl+End Ctrl+Home Tab Left Up Ctrl+Down Left")
           .split(' ')) {
    const QKeyCombination it = QKeySequence(way)[0];
    key(it.key(), it.keyboardModifiers());
    visited += QString::number(focusedCell()) + ' ';
  }
  EXPECT_EQ(visited, "1 24 26 19 18 21 15 49 1 0 0 1 1 1 ");
  EXPECT_EQ(heard("say").filter("Edge of the board").size(), 2);
}

TEST_F(AccessibilityTest, AboutAndHelpAreReadOutAndHelpBesideAnyBox) {
  QString about;
  key(Qt::Key_F1);
  auto* help = &dynamic_cast<qt::HelpWindow&>(*QApplication::activeWindow());
  auto* text = help->findChild<QTextBrowser*>();
  const int top = text->verticalScrollBar()->value();
  const auto* bar = help->findChild<QToolBar*>();
  EXPECT_FALSE(bar->actions().at(1)->isEnabled() || bar->isMovable() ||
               help->windowIcon().isNull() || bar->contextMenuPolicy() != Qt::PreventContextMenu ||
               help->size() != QSize(560, 620));
  EXPECT_EQ(help->windowTitle() + bar->windowTitle() + bar->actions().at(1)->text(),
            "Tessoro HelpNavigationBack");
  QElapsedTimer chosen;
  onModal = [&](QWidget* box) {
    EXPECT_GE(chosen.elapsed(), 90) << "a key is taken in before what it brings about";
    about = announces ? heard("say").join("") : box->accessibleDescription();
    for (QAction* way : bar->actions()) {
      for (const auto it : {Qt::Key_Tab, Qt::Key_Return}) QTest::keyClick(help->windowHandle(), it);
      EXPECT_GT(text->verticalScrollBar()->value(), top) << "a link leads on";
      way->trigger();
      EXPECT_EQ(text->verticalScrollBar()->value() + text->backwardHistoryCount(), top);
    }
    box->close();
  };
  chosen.start();
  choose("About");
  EXPECT_TRUE(about.endsWith("Tessoro developers. tessoro@example.org. Version 1.0"));
  bar->widgetForAction(bar->actions().at(0))->setFocus();
  help->close();
  EXPECT_TRUE(announces || help->findChild<QWidget*>("notification")->isHidden());
  heard("");
  choose("Help");
  EXPECT_EQ(told.filter("say ").join(""),
            "say Tessoro. The arrow keys go through the text, Tab to its links, Escape closes it");
  EXPECT_TRUE(heard("Focus").contains("Help"));
  for (const auto it : {Qt::Key_Tab, Qt::Key_Return}) key(it);
  EXPECT_EQ(heard("say"), QStringList({"the keys, link", "Playing by keys and by ear"}));
  EXPECT_EQ(text->textCursor().block().text().simplified(), "Playing by keys and by ear");
  QStyleHintReturnVariant mark;
  const auto hint = QStyle::SH_TextControl_FocusIndicatorTextCharFormat;
  EXPECT_EQ(text->style()->styleHint(hint, nullptr, text, &mark), 1);
  EXPECT_EQ(mark.variant.value<QTextFormat>().background(), QApplication::palette().highlight());
  EXPECT_TRUE(text->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard)) << "a caret";
  key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(heard("say"), QStringList("the keys, link")) << "where it was left";
  for (int i = 0; i < 99 && help->focusWidget() == text; ++i) key(Qt::Key_Tab);
  EXPECT_TRUE(heard("Focus").contains("Contents"));
  chosen.start();
  key(Qt::Key_Escape);
  EXPECT_FALSE(help->isVisible() || chosen.elapsed() < 90);

  const QTemporaryDir folder;
  QFile file(folder.filePath("some.hlp"));
  for (const auto& [content, shown] : std::map<QByteArray, QString>{
           {{}, "The help file \"some.hlp\" cannot be found."},
           {" \n", "The help file \"some.hlp\" is empty."},
           {" \x89PNG", "The help file \"some.hlp\" is damaged: it is not a text."},
           {"<h1>Help</h1>", "Help"},
           {"<h1>New</h1>", "New"}}) {
    if (!content.isNull() && file.open(QIODevice::WriteOnly)) file.write(content);
    file.close();
    help->showContents(file.fileName());
    EXPECT_EQ(text->toPlainText(), shown);
  }
  qt::QtHelpViewer viewer({folder.path() + "/none", folder.path()});
  EXPECT_TRUE(viewer.WinHelpA(game.form, "some.hlp", 3, 0));
  help->showContents(folder.path());
  EXPECT_EQ(text->toPlainText(),
            "The help file \"" + QDir(folder.path()).dirName() + "\" cannot be read.");
}

TEST_F(AccessibilityTest, TheLastMoveIsReadOutWithTheBoxAndTheNextPuzzleAtOnce) {
  QString last;
  QElapsedTimer pressed;
  onModal = [this, &last, &pressed, answer = onModal](QWidget* box) {
    last = box->findChild<QLabel*>("qt_msgbox_label")->accessibleName();
    act(cell(17), "Press");
    key(Qt::Key_Space);
    choose("Set a Puzzle for computer to solve");
    EXPECT_GE(pressed.elapsed(), 90) << "the key has been taken in before";
    QTest::qWait(1100);
    EXPECT_EQ(heard("say").filter("You got").size(), 1) << "the key has cut it short";
    answer(box);
  };
  for (int k = 1; k <= 16; ++k) {
    cell(numberCells[k]).SetFocus();
    type(QString::fromStdString(game.state.SolNumbers[k].substr(1)));
    cell(operatorCells[k]).SetFocus();
    pressed.start();
    type(QString::fromStdString(game.state.SolOperators[k]));
  }
  EXPECT_EQ(messages, std::vector<QString>{"TESSORO: You got it !"});
  EXPECT_TRUE(last.endsWith("is correct. You got it !")) << last.toStdString();
  EXPECT_TRUE(heard("say").filter("is correct").isEmpty()) << "it is not said twice";
  key(Qt::Key_Space);
  EXPECT_EQ(heard("say"), QStringList("The puzzle is over"));
  for (const auto it : {Qt::Key_Tab, Qt::Key_Space}) key(it);
  EXPECT_TRUE(told.filter(QRegularExpression("target $")).isEmpty()) << "of a board in between";
  EXPECT_FALSE(told.contains("NameChanged Puzzle Number  2")) << "it is in the sentence";
  EXPECT_TRUE(heard("say").value(0).startsWith("Puzzle 2. Corners: top left "));
}

/// Somebody who uses the mouse, the keys and the actions of a screen reader at random.
struct WindowPlayerTest : AccessibilityTest {
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
