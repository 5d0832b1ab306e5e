#include "client.h"

namespace tessoro::test {

using AccessibilityTest = ClientTest;

TEST_F(AccessibilityTest, FirstPuzzleIsSpokenWhenAScreenReaderStarts) {
  EXPECT_EQ(greeting.value(0), "Corners: top left 7, top right 1, bottom left 3, bottom right 8");
}

TEST_F(AccessibilityTest, NumberIsAButtonAndResultIsText) {
  EXPECT_EQ(at(cell(17))->role(), QAccessible::Button);
  EXPECT_EQ(at(cell(21))->role(), QAccessible::StaticText);
}

TEST_F(AccessibilityTest, FocusIsReportedAgainAfterAMenuCommand) {
  act(cell(7), "SetFocus");
  client.notified(QAccessible::Focus);
  choose("Set a Puzzle for computer to solve");
  EXPECT_TRUE(client.notified(QAccessible::Focus).contains("not set, row 1 column 7"));
}

TEST_F(AccessibilityTest, ClientsAreNotNotifiedDuringASearch) {
  click(cell(17));
  settle();
  client.notified(QAccessible::NameChanged);
  click(game.form.NewPuz);
  settle();
  const QStringList names = client.notified(QAccessible::NameChanged);
  EXPECT_EQ(names.filter(QRegularExpression("target $")), QStringList()) << "an empty target";
  EXPECT_FALSE(names.contains("Puzzle Number  2")) << "the sentence says it already";
}

}  // namespace tessoro::test
