#include <cmath>

#include "fixture.h"

namespace tessoro::test {

using SearchTest = GameTest;

TEST_F(SearchTest, ExitEndsTheProgramDuringASearch) {
  desktop.onYield = [this] { choose("Exit"); };
  EXPECT_THROW(click(form.NewPuz), ProgramEnded);
}

/// The digits depend only on the clock, so every run draws the same.
TEST_F(SearchTest, DigitsAreDistributedAlikeWhetherTheClockRunsStandsJumpsOrGoesBack) {
  for (const double tick : {1e-6, 0.0, 0.125, -3.5}) {
    desktop.tick = tick;
    ReseededDigits digits(desktop);
    std::array<int, 10> counts{};
    for (int i = 0; i < 324000; ++i) ++counts.at(digits.draw());
    constexpr std::array<int, 10> share{0, 1, 2, 2, 2, 2, 2, 2, 2, 3};  // of 18
    for (int digit = 0; digit < 10; ++digit) {
      const int expected = 18000 * share[digit];
      EXPECT_NEAR(counts[digit], expected, 4 * std::sqrt(expected)) << digit << ", tick " << tick;
    }
  }
}

}  // namespace tessoro::test
