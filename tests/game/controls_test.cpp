#include <gtest/gtest.h>

#include "platform/cell_pane.h"
#include "platform/form.h"

namespace {

using platform::MouseButton;

TEST(CellPaneTest, PressesBecomeEventsUnlessItIsDisabledOrHidden) {
  platform::CellPane cell;
  std::string events;
  cell.mouseDown = [&](const platform::MousePress& press) {
    events += "down" + std::to_string(static_cast<int>(press.button)) + " ";
  };
  cell.click = [&] { events += "click "; };
  cell.contextMenu = [&](int, double, double) { events += "context "; };
  const auto pressAndRelease = [&](MouseButton button, bool inside) {
    events.clear();
    cell.press({.button = button});
    cell.release(button, inside);
    return events;
  };
  EXPECT_EQ(pressAndRelease(MouseButton::left, true), "down1 click ");
  EXPECT_EQ(pressAndRelease(MouseButton::left, false), "down1 ");
  EXPECT_EQ(pressAndRelease(MouseButton::right, true), "down2 context ");
  cell.press({});
  cell.enabled = false;
  cell.release(MouseButton::left, true);
  EXPECT_EQ(events, "down2 context down1 ") << "disabled between press and release";
  EXPECT_EQ(pressAndRelease(MouseButton::right, true), "");
  cell.enabled = true;
  cell.Visible = false;
  EXPECT_EQ(pressAndRelease(MouseButton::left, true), "");
}

TEST(PropertyTest, ChangesNotifyOnceAndEqualValuesNobody) {
  platform::CellPane cell;
  int changes = 0;
  cell.changed = [&] { ++changes; };
  for (const bool enabled : {true, false, false}) cell.enabled = enabled;
  for (const auto* caption : {"", "7", "7"}) cell.caption = caption;
  EXPECT_EQ(changes, 2);
}

}  // namespace
