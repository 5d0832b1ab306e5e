#include <cstdlib>
#include <iostream>
#include <random>

#include "fixture.h"

namespace tessoro::test {

using enum platform::MouseButton;

/// A player who presses, types and chooses anything at any time, even during a search, while the
/// clock stands still or jumps.
struct RandomPlayerTest : GameTest {
  std::mt19937 random;
  int pressed = 0;  ///< the cell that the last event may change; 0 for none

  int below(unsigned end) { return static_cast<int>(random() % end); }
  void act() {
    pressed = 0;
    if (below(50) == 0) desktop.tick = below(2) * (below(2000) - 1000.5);
    const int kind = game.search.isRunning() ? 7 + below(4) : below(11);
    if (kind < 8) {
      pressed = below(boardCells);
      press(pressed, std::array{left, right, middle}.at(below(3)));
    } else if (kind == 8) {
      click(below(2) == 0 ? form.NewPuz : form.Solveit);
    } else if (kind == 9) {
      form.Gamex.items[below(10)]->choose();  // anything but Exit
    } else {
      const std::string before = Invariants::look(game);
      const int index = below(boardCells);
      type(index, std::string("123456789+-*0rctlnNq")[below(20)]);
      if (Invariants::look(game) != before) pressed = index;
    }
  }
};

TEST_F(RandomPlayerTest, NoRuleIsEverBroken) {
  const char* last = std::getenv("TESSORO_SEED");
  const auto seed = last == nullptr ? std::random_device{}() : std::stoul(last);
  std::cout << "TESSORO_SEED=" << seed << '\n';
  random.seed(seed);
  desktop.onYield = [&] {
    const std::string before = Invariants::look(game);
    if (below(3) == 0) act();
    EXPECT_EQ(Invariants::look(game), before) << "changed during a search";
    pressed = 0;
  };
  Invariants invariants(game);
  for (int events = 0; events < 100000; ++events) {
    const std::string before = Invariants::look(game);
    act();
    ASSERT_EQ(invariants.broken(pressed, desktop.said.empty() ? "" : desktop.said[0]), "")
        << "after a press on cell " << pressed << " (0: another event) of\n"
        << before << "\nwhich became\n"
        << Invariants::look(game) << "\nwith the sentence: " << lastSaid();
    desktop.said.clear();
  }
}

}  // namespace tessoro::test
