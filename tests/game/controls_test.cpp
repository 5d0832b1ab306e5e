#include <gtest/gtest.h>

#include "platform/cell_pane.h"
#include "platform/form.h"

namespace {

using platform::MouseButton;

TEST(CellPaneTest, PressesBecomeEventsUnlessItIsDisabledOrHidden) {
  platform::CellPane cell;
  std::string events;
  cell.mouseDown = [&](const platform::MousePress&) { events += "down "; };
  cell.click = [&] { events += "click "; };
  cell.contextMenu = [&](int, double, double) { events += "context "; };
  const auto pressAndRelease = [&](MouseButton button, bool inside) {
    cell.press({.button = button});
    cell.release(button, inside);
  };
  pressAndRelease(MouseButton::left, false);
  pressAndRelease(MouseButton::right, true);
  pressAndRelease(MouseButton::left, true);
  EXPECT_EQ(events, "down down context down click ");
  cell.press({});
  for (auto* property : {&cell.enabled, &cell.Visible}) {
    *property = false;  // at first between press and release
    cell.release(MouseButton::left, true);
    pressAndRelease(MouseButton::right, true);
    *property = true;
  }
  EXPECT_EQ(events, "down down context down click down ");
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
