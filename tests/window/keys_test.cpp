#include "picture.h"

namespace tessoro::test {

/// What a cell that shows 5 shows after a key.
struct PressingKey {
  const char* name;
  QKeyCombination key;
  const char* text;
  const char* shown;
};
struct PressingKeyTest : WindowTest, testing::WithParamInterface<PressingKey> {};

TEST_P(PressingKeyTest, OnA5) {
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
                    PressingKey{"KeypadEnterCountsUp", Qt::KeypadModifier | Qt::Key_Enter, "\r",
                                "6"},
                    PressingKey{"BackspaceCountsDown", Qt::Key_Backspace, "\b", "4"},
                    PressingKey{"KeypadPlusCountsUp", Qt::KeypadModifier | Qt::Key_Plus, "+", "6"},
                    PressingKey{"AltDigitDoesNothing", Qt::ALT | Qt::Key_3, "3", "5"}),
    nameOf<PressingKey>);

/// Where a key leads in the grid.
struct LeadingKey {
  const char* name;
  int from;
  QKeyCombination key;
  int to;
};
struct LeadingKeyTest : WindowTest, testing::WithParamInterface<LeadingKey> {};

TEST_P(LeadingKeyTest, Leads) {
  const auto& [name, from, key, to] = GetParam();
  cell(from).SetFocus();
  tap(key.key(), key.keyboardModifiers());
  EXPECT_EQ(focusedCell(), to);
}

INSTANTIATE_TEST_SUITE_P(Keys, LeadingKeyTest,
                         testing::Values(LeadingKey{"RightOverAHole", 24, Qt::Key_Right, 26},
                                         LeadingKey{"UpOverAHole", 16, Qt::Key_Up, 2},
                                         LeadingKey{"UpOverAnotherHole", 18, Qt::Key_Up, 4},
                                         LeadingKey{"HomeInTheRow", 18, Qt::Key_Home, 15},
                                         LeadingKey{"ToTheFirst", 18, Qt::CTRL | Qt::Key_Home, 1},
                                         LeadingKey{"ToTheLast", 18, Qt::CTRL | Qt::Key_End, 49}),
                         nameOf<LeadingKey>);

struct KeysTest : PictureTest {
  /// The menu's item that is marked; none while the menu is closed.
  static QString marked() {
    const auto* popup = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    return popup == nullptr ? "" : popup->activeAction()->text();
  }
};

TEST_F(KeysTest, TabAndUpLeadFromTheButtonBackToTheCell) {
  for (const auto back : {Qt::Key_Tab, Qt::Key_Up}) {
    cell(17).SetFocus();
    tap(Qt::Key_Tab);
    tap(back);
    EXPECT_EQ(focusedCell(), 17);
  }
}

TEST_F(KeysTest, ShiftNOnSolvePuzzleLeadsToTheLastUnsetCorner) {
  choose("Set a Puzzle for computer to solve");
  game.form.Solveit.SetFocus();
  type("N");
  EXPECT_EQ(focusedCell(), 49);
}

TEST_F(KeysTest, EscapeLeadsFromTheMenuToTheRingedCell) {
  tap(Qt::Key_F10);
  tap(Qt::Key_Escape);
  EXPECT_EQ(marked(), "");
  EXPECT_EQ(difference(&cell(1)), "");
}

}  // namespace tessoro::test
