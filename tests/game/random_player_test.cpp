#include <iostream>
#include <random>

#include "fixture.h"
#include "invariants.h"

namespace tessoro::test {

/// A player who presses anything with any button and chooses any command at any time, also while a
/// search runs, under a clock that stands still or jumps. TESSORO_SEED plays the same again,
/// TESSORO_EVENTS longer.
class RandomPlayer {
 public:
  explicit RandomPlayer(unsigned seed) : seed_(seed), random_(seed) {
    desktop_.onYield = [this] {
      if (!one(3)) return;
      const std::string before = Invariants::look(game_);
      event();
      if (Invariants::look(game_) != before) broken_ = "a running search is left alone";
    };
  }

  /// Plays until the program ends, or the events are used up, or a rule is broken, which it says.
  std::string play(unsigned& events) {
    try {
      game_.startUp.Form_Load();
      Invariants invariants(game_);
      for (; events > 0; --events) {
        pressedInPlay_ = false;
        event();
        const std::string rule = invariants.broken(pressedInPlay_);
        if (broken_.empty()) broken_ = rule;
        if (!broken_.empty()) return broken_ + ", TESSORO_SEED=" + std::to_string(seed_);
        desktop_.messages.clear();
        desktop_.requests.all.clear();
      }
    } catch (const ProgramEnded&) {
      if (!mayEnd_) return "only Exit and closing the window end the program";
    }
    return {};
  }

 private:
  int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random_); }
  bool one(int in) { return below(in) == 0; }

  void event() {
    desktop_.answer = one(2) ? platform::Desktop::Answer::yes : platform::Desktop::Answer::no;
    if (one(50)) desktop_.tick = one(2) ? 0 : below(2000) - 1000.5;
    Form1& form = game_.form;
    const int kind = game_.search.underWay() ? 70 + below(30) : below(100);
    if (kind < 80) {
      pressedInPlay_ = !game_.state.SolveMode && !game_.search.underWay();
      form.board.GridDisp[below(boardCells)].press({.button = anyButton()});
    } else if (kind < 90) {
      Cell& button = one(2) ? form.NewPuz : form.Solveit;
      button.press({.button = anyButton()});
      button.release(platform::MouseButton::left, !one(4));
    } else {
      const auto& items = form.Gamex.items;
      const platform::MenuItem* item = items[below(static_cast<int>(items.size()))];
      const bool ending = item == &form.Exitx;
      if (ending && !one(200)) return;
      mayEnd_ = ending;
      if (ending && one(2)) form.unload();
      item->choose();
    }
  }
  platform::MouseButton anyButton() {
    using enum platform::MouseButton;
    return std::array{left, left, right, middle, other}.at(below(5));
  }

  unsigned seed_;
  std::mt19937 random_;
  FakeDesktop desktop_;
  ReseededDigits digits_{desktop_};
  Game game_{desktop_, digits_};
  bool pressedInPlay_ = false;
  bool mayEnd_ = false;
  std::string broken_;
};

TEST(RandomPlayerTest, NoRuleIsEverBroken) {
  unsigned seed = fromEnvironment("TESSORO_SEED", std::random_device{}());
  unsigned events = fromEnvironment("TESSORO_EVENTS", 200000);
  std::cout << "TESSORO_SEED=" << seed << '\n';
  while (events > 0) {
    ASSERT_EQ(RandomPlayer(seed++).play(events), "") << events << " events were left";
  }
}

}  // namespace tessoro::test
