#include <random>

#include "client.h"
#include "game/invariants.h"

namespace tessoro::test {

/// A player who uses the mouse, the keys and a screen reader's actions at random.
struct WindowPlayerTest : ClientTest {
  std::mt19937 random{std::random_device{}()};
  QString done;           ///< the last event, in words
  int pressed = 0;        ///< the cell of the grid that it may have changed
  bool ring = false;      ///< the keys have been used since the last click
  QStringList sentences;  ///< spoken since the last event

  int below(qsizetype end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }
  auto anyOf(const auto& list) { return *(std::begin(list) + below(std::ssize(list))); }
  /// Returns the grid's cell at a place; 0 for none and near edges, where cells overlap.
  int cellAt(QPoint place) {
    const int edge = qCeil(3 * zoom());
    const QMargins margins(edge, edge, edge, edge);
    int index = gridCells;
    while (index > 0 && !(rectOf(cell(index)) - margins).contains(place)) --index;
    return index;
  }

  void clickAnywhere() {
    const QPoint place(below(view.width()), below(view.height()));
    done = "click at " + QDebug::toString(place);
    pressed = cellAt(place);
    ring = false;
    click(place, anyOf(std::array{Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}));
  }
  void tapAKey() {
    const int number = below(7);
    const auto key = std::array{Qt::Key_Space, Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Left,
                                Qt::Key_Down,  Qt::Key_End,    Qt::Key_Tab}[number];
    done = QDebug::toString(key);
    pressed = number < 3 ? focusedCell() : 0;
    ring = true;
    tap(key);
  }
  void typeACharacter() {
    const QChar it = anyOf(QString("123456789+-*rctlnN"));
    done = QString("type ") + it;
    pressed = it.isLetter() ? 0 : focusedCell();
    // The button has no row or column. Controls that only a client can focus accept no key.
    const QWidget* focus = QApplication::focusWidget();
    const bool isButton = focus != nullptr && focus->focusPolicy() != Qt::NoFocus;
    ring = ring || focusedCell() != 0 || (isButton && it != 'r' && it != 'c');
    type(it);
  }
  void actAsAClient() {
    QAccessibleInterface* control = anyOf(client.controls());
    const QString action = anyOf(control->actionInterface()->actionNames() << "SetFocus");
    done = action + " " + control->text(QAccessible::Name);
    const QPoint middle = dynamic_cast<QWidget*>(control->object())->geometry().center();
    pressed = action == "SetFocus" ? 0 : cellAt(middle);
    if (!control->state().invisible) control->actionInterface()->doAction(action);
  }
  void chooseACommand() {
    done = anyOf(QStringList{"Start a Solution", "Show Solution",
                             "Set a Puzzle for computer to solve", "End computer solution mode"});
    pressed = 0;
    choose(done);
  }
  void changeTheZoom() {
    const auto key = anyOf(std::array{Qt::Key_Plus, Qt::Key_Minus, Qt::Key_0});
    done = "Ctrl and " + QDebug::toString(key);
    pressed = 0;
    tap(key, Qt::ControlModifier);
  }
  void doSomething() {
    using Player = WindowPlayerTest;
    constexpr std::array usual{&Player::clickAnywhere, &Player::tapAKey, &Player::typeACharacter};
    constexpr std::array rare{&Player::actAsAClient, &Player::chooseACommand,
                              &Player::changeTheZoom};
    (this->*anyOf(below(5) > 0 ? usual : rare))();
    sentences += said();
    window.activateWindow();  // as a window manager does when a box closes
    settle();
  }
};

TEST_F(WindowPlayerTest, ScreenClientAndVoiceAlwaysMatchTheGame) {
  onBox = [&](Box box) {
    // A sentence that the box would cut off is read with its text.
    const QString read = box.label()->accessibleName();
    if (read != box.label()->text()) sentences += read;
    box.firstButton()->click();
  };
  Invariants invariants(game);
  for (int events = 0; events < 200 && !HasFailure(); ++events) {
    const std::string look = Invariants::look(game);
    sentences.clear();
    doSomething();
    SCOPED_TRACE(done.toStdString() + " on\n" + look);
    // The game's own rules are kept.
    const bool changed = Invariants::look(game) != look;
    const std::string sentence = sentences.value(0).toStdString();
    EXPECT_EQ(invariants.broken(changed ? pressed : 0, sentence), "");
    // The screen shows what the controls describe, with a focus ring while the keys are used.
    EXPECT_EQ(difference(ring ? focused() : nullptr), "");
    // The title is the form's.
    EXPECT_EQ(window.windowTitle(), QString::fromStdString(game.form.caption()));
    // A client that asks only after an event knows all names and states.
    EXPECT_EQ(client.mistake(), "");
    // Exactly one sentence follows a press on any cell but a hole, at most one any other event.
    const bool isAnswered = pressed != 0 && roleOf(pressed) != CellRole::hole;
    EXPECT_GE(sentences.size(), isAnswered ? 1 : 0);
    EXPECT_LE(sentences.size(), 1) << sentences.join(" | ").toStdString();
  }
}

}  // namespace tessoro::test
