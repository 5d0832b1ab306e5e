#include "app/about_form.h"
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

TEST(AboutTest, ClosesByItsButtonItsTextAndItsWindow) {
  AboutForm about;
  for (const auto& close : {about.AboutOk.click, about.AboutText.mouseDown, about.unload}) {
    about.Visible = true;
    close();
    EXPECT_FALSE(about.Visible());
  }
}

}  // namespace tessoro::test
