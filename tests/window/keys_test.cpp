#include "picture.h"

namespace tessoro::test {

/// A key, and what a cell that shows 5 shows after it.
struct PressingKey {
  const char* name;
  QKeyCombination key;
  const char* text;
  const char* shown;
  friend void PrintTo(const PressingKey& it, std::ostream* out) { *out << it.name; }
};
struct PressingKeyTest : WindowTest, testing::WithParamInterface<PressingKey> {};

TEST_P(PressingKeyTest, SetsACellThatShows5) {
  cell(17).SetFocus();
  type("5");
  const auto& [name, key, text, shown] = GetParam();
  tap(key.key(), key.keyboardModifiers(), text);
  EXPECT_EQ(caption(17), shown);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, PressingKeyTest,
    testing::Values(PressingKey{"SpaceCountsUp", Qt::Key_Space, " ", "6"},
                    PressingKey{"ReturnCountsUp", Qt::Key_Return, "\r", "6"},
                    PressingKey{"EnterCountsUp", Qt::KeypadModifier | Qt::Key_Enter, "\r", "6"},
                    PressingKey{"BackspaceCountsDown", Qt::Key_Backspace, "\b", "4"},
                    PressingKey{"KeypadPlusCountsUp", Qt::KeypadModifier | Qt::Key_Plus, "+", "6"}),
    testing::PrintToStringParamName());

/// A key, and the cells between which it moves the focus.
struct MovingKey {
  const char* name;
  int from;
  QKeyCombination key;
  int to;
  friend void PrintTo(const MovingKey& it, std::ostream* out) { *out << it.name; }
};
struct MovingKeyTest : WindowTest, testing::WithParamInterface<MovingKey> {};

TEST_P(MovingKeyTest, MovesTheFocus) {
  const auto& [name, from, key, to] = GetParam();
  cell(from).SetFocus();
  tap(key.key(), key.keyboardModifiers());
  EXPECT_EQ(focusedCell(), to);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, MovingKeyTest,
    testing::Values(MovingKey{"RightOverAHole", 24, Qt::Key_Right, 26},
                    MovingKey{"UpOverAHole", 16, Qt::Key_Up, 2},
                    MovingKey{"HomeInTheRow", 18, Qt::Key_Home, 15},
                    MovingKey{"CtrlHomeToTheFirstCell", 18, Qt::CTRL | Qt::Key_Home, 1},
                    MovingKey{"CtrlEndToTheLastCell", 18, Qt::CTRL | Qt::Key_End, 49}),
    testing::PrintToStringParamName());

struct KeysTest : PictureTest {
  /// Returns the selected menu item; empty if there is none.
  static QString selectedItem() {
    const auto* popup = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    const QAction* selected = popup == nullptr ? nullptr : popup->activeAction();
    return selected == nullptr ? "" : selected->text();
  }
};

TEST_F(KeysTest, TabAndUpReturnFromTheButtonToTheCell) {
  for (const auto back : {Qt::Key_Tab, Qt::Key_Up}) {
    cell(17).SetFocus();
    tap(Qt::Key_Tab);
    tap(back);
    EXPECT_EQ(focusedCell(), 17) << QDebug::toString(back).toStdString();
  }
}

TEST_F(KeysTest, ButtonThatAppearsInAnothersPlaceGetsItsFocus) {
  tap(Qt::Key_Tab);
  choose("Set a Puzzle for computer to solve");
  EXPECT_EQ(focused(), &game.form.Solveit);
}

TEST_F(KeysTest, MenuKeysOpenTheMenuAndEscapeReturnsToTheCell) {
  for (const auto key : {Qt::Key_F10, Qt::Key_Alt}) {
    tap(key);
    EXPECT_EQ(selectedItem(), "Start a Solution") << QDebug::toString(key).toStdString();
    tap(Qt::Key_Escape);
    EXPECT_EQ(selectedItem(), "");
    EXPECT_EQ(difference(&cell(1)), "");
  }
}

}  // namespace tessoro::test
