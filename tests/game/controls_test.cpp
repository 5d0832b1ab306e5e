#include <gtest/gtest.h>

#include <vector>

#include "platform/cell_pane.h"
#include "platform/form.h"

using platform::CellPane;
using platform::MouseButton;

namespace {

struct ControlsTest : testing::Test {
  CellPane cell;
  std::vector<std::string> events;

  void SetUp() override {
    cell.mouseDown = [&](const platform::MousePress& press) {
      events.push_back("down" + std::to_string(static_cast<int>(press.button)));
    };
    cell.click = [&] { events.emplace_back("click"); };
    cell.contextMenu = [&](int, double, double) { events.emplace_back("context"); };
  }
  void clickInside() {
    cell.press({});
    cell.release(MouseButton::left, true);
  }
};

TEST_F(ControlsTest, ChangesNotifyOnceAndEqualValuesNobody) {
  int changes = 0;
  cell.changed = [&] { ++changes; };
  cell.caption = "7";
  cell.caption = "7";
  cell.backcolor = platform::rgb(0, 128, 0);
  cell.Visible = true;
  cell.enabled = false;
  EXPECT_EQ(changes, 3);
}

TEST_F(ControlsTest, AClickIsALeftPressReleasedInside) {
  clickInside();
  EXPECT_EQ(events, (std::vector<std::string>{"down1", "click"}));
  events.clear();
  cell.press({});
  cell.release(MouseButton::left, false);
  cell.release(MouseButton::left, true);
  cell.press({.button = MouseButton::right});
  cell.release(MouseButton::right, true);
  EXPECT_EQ(events, (std::vector<std::string>{"down1", "down2", "context"}));
}

TEST_F(ControlsTest, DisabledOrHiddenCellsAreSilent) {
  for (auto* property : {&cell.enabled, &cell.Visible}) {
    *property = false;
    clickInside();
    cell.press({.button = MouseButton::right});
    EXPECT_TRUE(events.empty());
    *property = true;
  }
  cell.press({});
  cell.enabled = false;  // between press and release
  cell.release(MouseButton::left, true);
  EXPECT_EQ(events, std::vector<std::string>{"down1"});
}

TEST(MenuItemTest, ADisabledItemDoesNotReact) {
  platform::MenuItem item{"Print"};
  int chosen = 0;
  item.click = [&] { ++chosen; };
  item.choose();
  item.enabled = false;
  item.choose();
  EXPECT_EQ(chosen, 1);
}

}  // namespace
