#include <iostream>
#include <random>

#include "invariants.h"
#include "window_fixture.h"

namespace tessoro::test {

using RandomWindowTest = WindowTest;

/// The random player at the real window, with the mouse, the menu and the dialogs.
TEST_F(RandomWindowTest, NoRuleIsEverBroken) {
  const unsigned seed = fromEnvironment("TESSORO_SEED", std::random_device{}());
  std::cout << "TESSORO_SEED=" << seed << '\n';
  std::mt19937 random(seed);
  const auto below = [&](int end) {
    return std::uniform_int_distribution<int>(0, end - 1)(random);
  };
  // Through the window system, which keeps the mouse away from a window behind a modal box.
  const auto clickAnything = [&] {
    const int index = below(boardCells + 6);
    const Cell& target = index == 0 || index >= boardCells ? game.form.NewPuz : cell(index);
    QTest::mouseClick(window.windowHandle(), below(3) == 0 ? Qt::RightButton : Qt::LeftButton, {},
                      view.mapTo(&window, middleOf(target)));
  };
  std::string before;
  onModal = [&](QWidget* modal) {
    before = Invariants::look(game);
    clickAnything();
    EXPECT_EQ(Invariants::look(game), before) << "a box keeps presses away";
    modal->close();
  };
  watch.setInterval(0);
  menu.erase("Exit");
  Invariants invariants(game);
  for (unsigned event = fromEnvironment("TESSORO_EVENTS", 20000); event > 0; --event) {
    const bool press = below(10) != 0;
    if (press) {
      clickAnything();
    } else {
      std::next(menu.begin(), below(static_cast<int>(menu.size())))->second->trigger();
    }
    settle();
    ASSERT_EQ(invariants.broken(false), "") << event << " events were left";
  }
}

}  // namespace tessoro::test
