#include <cstdlib>
#include <iostream>
#include <random>

#include "fixture.h"

namespace tessoro::test {

using enum platform::MouseButton;
using RandomPlayerTest = GameTest;

/// The number in an environment variable, or the usual one.
static unsigned fromEnvironment(const char* name, unsigned usual) {
  const char* text = std::getenv(name);
  return text == nullptr ? usual : static_cast<unsigned>(std::stoul(text));
}

/// Presses anything and chooses any command at any time, also while a search runs, under a clock
/// that stands still or jumps. TESSORO_SEED plays the same again, TESSORO_EVENTS longer.
TEST_F(RandomPlayerTest, NoRuleIsEverBroken) {
  const unsigned seed = fromEnvironment("TESSORO_SEED", std::random_device{}());
  std::cout << "TESSORO_SEED=" << seed << '\n';
  std::mt19937 random(seed);
  const auto below = [&](unsigned end) { return static_cast<int>(random() % end); };
  int pressed = 0;
  const auto event = [&] {
    if (below(50) == 0) desktop.tick = below(2) * (below(2000) - 1000.5);
    if (const int kind = game.search.underWay() ? 7 + below(3) : below(10); kind < 8) {
      pressed = below(boardCells);
      const bool isOperator = cell(pressed).Tag().starts_with('X');
      const char character = isOperator ? "+-*"[below(3)] : static_cast<char>('1' + below(9));
      if (below(3) != 0 || !cell(pressed).typed) {
        press(pressed, std::array{left, right, middle}.at(below(3)));
      } else {
        const bool shown = caption(pressed) == std::string(1, character);
        cell(pressed).typed(character, false);
        if (shown) pressed = 0;  // no press, then
      }
    } else if (kind == 8) {
      clickButton(below(2) == 0 ? form.NewPuz : form.Solveit);
    } else {
      form.Gamex.items[below(10)]->choose();  // anything but Exit
    }
  };
  desktop.onYield = [&] {
    const std::string before = look();
    if (below(3) == 0) event();
    pressed = 0;
    EXPECT_EQ(look(), before) << "a running search is left alone";
  };
  Invariants invariants(game);
  for (unsigned events = fromEnvironment("TESSORO_EVENTS", 200000); events > 0; --events) {
    pressed = 0;
    event();
    EXPECT_EQ(invariants.broken(pressed, desktop.said.empty() ? "" : desktop.said[0]), "");
    ASSERT_FALSE(HasFailure()) << look() << '\n' << events << " events were left";
    desktop.log.clear();
    desktop.said.clear();
  }
}

}  // namespace tessoro::test
