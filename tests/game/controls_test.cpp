#include <set>

#include "app/about_form.h"
#include "app/pictures.h"
#include "fixture.h"

namespace tessoro::test {

using enum platform::MouseButton;
using ButtonTest = GameTest;

TEST_F(ButtonTest, ReleaseOutsideIsNoClick) {
  form.NewPuz.press({});
  form.NewPuz.release(left, false);
  form.NewPuz.release(left, true);
  EXPECT_EQ(form.caption(), "Puzzle Number  1");
}

TEST_F(ButtonTest, AnotherMouseButtonGivesUpTheClick) {
  form.NewPuz.press({});
  form.NewPuz.press({.button = right});
  form.NewPuz.release(left, true);
  EXPECT_EQ(form.caption(), "Puzzle Number  1");
}

TEST_F(ButtonTest, HiddenOneIsSilent) {
  click(form.Solveit);
  EXPECT_EQ(desktop.said, Log{});
}

TEST_F(ButtonTest, WindowIsToldOfChangesAlone) {
  int changes = 0;
  form.NewPuz.changed = [&] { ++changes; };
  for (const char* caption : {"New", "New", "Old"}) form.NewPuz.caption = caption;
  EXPECT_EQ(changes, 2);
}

/// What clients are told: the number of actions of each cell, '.' where it is not presented.
TEST_F(ButtonTest, NumbersOfferTwoActionsAndOperatorsOne) {
  std::string actions;
  for (int i = 1; i <= gridCells; ++i) {
    const auto& it = cell(i).accessible;
    const bool presented = it.role != platform::Accessible::Role::none;
    actions += presented ? std::to_string(it.actions.size()) : ".";
    actions += columnOf(i) == gridSide ? "\n" : "";
  }
  EXPECT_EQ(actions,
            "2121202\n"
            "1.1.1.1\n"
            "2121200\n"
            "1.1.1.1\n"
            "2121200\n"
            "0.0.0.0\n"
            "2101002\n");
}

struct LayoutTest : testing::Test {
  Form1 form;

  static void expectOnWholePixelsWithin(int width, int height, const platform::Controls& controls) {
    for (const auto& control : controls) {
      const auto& it = std::visit([](auto* any) { return any->place; }, control);
      for (const int length : {it.left, it.top, it.width, it.height}) EXPECT_EQ(length % 15, 0);
      if (it.left > width) continue;  // out of sight
      EXPECT_LE(it.left + it.width, width + 4);
      EXPECT_LE(it.top + it.height, height);
    }
  }
};

TEST_F(LayoutTest, EverythingLiesOnWholePixelsWithinItsHolder) {
  const auto& frame = form.Frame1.place;
  expectOnWholePixelsWithin(form.clientWidth, form.clientHeight, form.controls);
  expectOnWholePixelsWithin(frame.width, frame.height, form.Frame1.controls);
  const AboutForm about;
  expectOnWholePixelsWithin(about.clientWidth, about.clientHeight, about.controls);
}

TEST_F(LayoutTest, CellsTouchOrOverlapByTwoPixels) {
  for (int i = 1; i + gridSide + 1 <= gridCells; ++i) {
    if (columnOf(i) == gridSide) continue;
    const auto& next = form.board.GridDisp[i + gridSide + 1].place;
    const auto& it = form.board.GridDisp[i].place;
    EXPECT_EQ((it.left + it.width - next.left) % 30, 0) << "to the right of cell " << i;
    EXPECT_EQ((it.top + it.height - next.top) % 30, 0) << "below cell " << i;
  }
}

TEST_F(LayoutTest, MenuHasGroups) {
  Log captions;
  for (const auto* item : form.Gamex.items) captions.push_back(item->caption());
  EXPECT_EQ(captions,
            (Log{"Start a Solution", "Show Solution", "-", "Set a Puzzle for computer to solve",
                 "-", "Print", "-", "Help", "About", "-", "Exit"}));
}

TEST_F(LayoutTest, FaceIsSymmetrical) {
  for (const auto row : smilingFace.rows) EXPECT_EQ(row, std::string(row.rbegin(), row.rend()));
}

TEST_F(LayoutTest, CalculatorHasFourRowsOfKeys) {
  const std::set<std::string_view> rows(calculator.rows.begin(), calculator.rows.end());
  EXPECT_EQ(rows.size(), 11) << "seven of its body and its display, and one of each row of keys";
}

TEST(AboutTest, NamesTheProgramItsAuthorsAndItsVersion) {
  const AboutForm about;
  EXPECT_EQ(about.AboutText.text,
            "\nTessoro, written by the Tessoro developers\ntessoro@example.org");
  EXPECT_EQ(about.Label1.caption(), "Version 1.0");
}

TEST(AboutTest, ClosesByItsButtonItsTextAndItsWindow) {
  AboutForm about;
  for (const auto& close : {about.AboutOk.click, about.AboutText.mouseDown, about.unload}) {
    about.Visible = true;
    close();
    EXPECT_FALSE(about.Visible());
  }
}

}  // namespace tessoro::test
