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

struct LayoutTest : testing::Test {
  Form1 form;

  static void expectOnWholePixelsWithin(int width, int height, const platform::Controls& controls) {
    for (const auto& control : controls) {
      const auto& it = std::visit([](auto* any) { return any->place; }, control);
      for (const int length : {it.left, it.top, it.width, it.height}) EXPECT_EQ(length % 15, 0);
      EXPECT_GT(it.width, 0);
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

TEST_F(LayoutTest, FaceIsSymmetrical) {
  for (const auto row : smilingFace.rows) EXPECT_EQ(row, std::string(row.rbegin(), row.rend()));
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
