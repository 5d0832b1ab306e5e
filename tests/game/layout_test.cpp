#include "fixture.h"

namespace tessoro::test {

using LayoutTest = GameTest;

TEST_F(LayoutTest, EverythingOnTheBoardHasASizeAndLiesWithinIt) {
  for (const platform::ControlRef& control : form.Frame1.controls) {
    const platform::Place place = std::visit([](auto* it) { return it->place; }, control);
    EXPECT_GT(place.width, 0);
    EXPECT_LE(place.left + place.width, form.Frame1.place.width);
    EXPECT_LE(place.top + place.height, form.Frame1.place.height);
  }
}

}  // namespace tessoro::test
