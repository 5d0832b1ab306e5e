#include <array>
#include <cmath>

#include "fixture.h"
#include "invariants.h"

namespace tessoro::test {

using SearchTest = GameTest;

TEST_F(SearchTest, TheWholeWorkedAttempt) {
  digits.script = {1, 2, 3, 4, 1, 2, 2, 2, 1};
  game.search.FindSolution();
  std::string numbers;
  std::string operators;
  for (int k = 1; k <= 16; ++k) {
    numbers += state.SolNumbers[k];
    operators += state.SolOperators[k];
  }
  EXPECT_EQ(numbers, " 1 2 3 6 4 1 2 7 2 2 1 5 7 5 6 8");
  EXPECT_EQ(operators,
            "++++++-+++++++"
            "+-");
  EXPECT_EQ(captionsOf({1, 7, 43, 49, 50, 51, 52, 53}), "16781678");
  EXPECT_EQ(form.caption(), "Puzzle Number  2");
  EXPECT_FALSE(form.Solveit.enabled());
}

TEST_F(SearchTest, ARowThatFitsNoPairIsDrawnAgainAlone) {
  // 2, 3, 4 gives no 2 but 8, 2, 3 does; then, from the top left 2, 2 + 1 * 3 gives the 5 asked
  // for.
  SolutionAttempt attempt(state, digits);
  const auto firstRow = [&](std::int16_t topLeft, std::int16_t topRight, std::deque<int> drawn) {
    state.TargetTL = topLeft;
    state.TargetTR = topRight;
    digits.script = std::move(drawn);
    attempt.run();
    return state.SolNumbers[1] + state.SolOperators[1] + state.SolNumbers[2] +
           state.SolOperators[2] + state.SolNumbers[3] + state.SolNumbers[4];
  };
  EXPECT_EQ(firstRow(0, 2, {9, 9, 9, 8, 2, 3}), " 8- 2* 3 2");
  EXPECT_EQ(firstRow(2, 5, {9, 3, 4, 9, 1, 3}), " 2+ 1* 3 5");
  EXPECT_EQ(firstRow(-1, -1, {9, 9, 9}), " 9+ 9- 9 9");
}

TEST_F(SearchTest, EverySolutionIsTrueAndKeepsTheFixedCorners) {
  int found = 0;
  Invariants invariants(game);
  for (int search = 0; search < 16 * 400; ++search) {
    const int fixed = search % 16;
    for (int k = 1; k <= 4; ++k) {
      const bool isFixed = (fixed >> (k - 1) & 1) != 0;
      state.*cornerTargets[k] = static_cast<std::int16_t>(isFixed ? digits.draw() : -(search % 2));
    }
    game.search.FindSolution();
    ASSERT_TRUE(game.search.SolveFound() || fixed != 0) << "with free corners none gives up";
    if (!game.search.SolveFound()) continue;
    ++found;
    ASSERT_EQ(invariants.broken(false), "") << "the page, with every line of the solution";
    for (int k = 1; k <= 4; ++k) {
      const int target = state.*cornerTargets[k];
      ASSERT_TRUE(target <= 0 || readNumber(state.SolNumbers[cornerNumbers[k]]) == target);
    }
  }
  EXPECT_GT(found, 6000);
}

TEST_F(SearchTest, GivesUpAfter500AttemptsAndGivesTheNumberBack) {
  // The results row 9, 3, 3 can give the 3 asked for, but the results column 9, 9, 9 cannot: every
  // attempt fails at its last step.
  state.TargetBR = 3;
  state.PuzzleNo = 32767;
  const std::string corners = captionsOf({1, 7, 43});
  press(3);
  const auto page = game.page.PrintLines;
  for (int row = 0; row < 501 * 3; ++row) {
    digits.script.insert(digits.script.end(), {9, 1, 1});
  }
  desktop.yields = 0;
  game.search.FindSolution();
  EXPECT_EQ(desktop.messages, std::vector<std::string>{"Cannot Solve This Time !"});
  EXPECT_EQ(desktop.yields, 501);
  EXPECT_EQ(digits.script.size(), 9U) << "the 501st attempt is not made";
  EXPECT_FALSE(game.search.SolveFound());
  EXPECT_EQ(form.caption(), "Puzzle Number  1") << "the number after 32767, and it stays";
  EXPECT_EQ(state.PuzzleNo, 32767);
  EXPECT_EQ(game.page.PrintLines, page);
  EXPECT_EQ(captionsOf({1, 2, 3, 6, 21, 36, 47}), corners.substr(0, 1) + "..=.=.");

  digits.script.clear();
  state.TargetBR = -1;
  game.search.FindSolution();
  EXPECT_EQ(game.page.PrintLines[1].substr(0, 12), "Puzzle No 1 ");
}

/// The distribution of pairs of neighbours by a chi-squared test at 0.1 %. The clock is the only
/// seed, so that the outcome is the same in every run.
TEST(DigitsTest, TheDistributionHoldsWhateverTheClockDoes) {
  constexpr int draws = 180000;
  for (const double tick : {1e-7, 0.0, 0.125, -3.5}) {
    FakeDesktop desktop;
    desktop.tick = tick;
    ReseededDigits digits(desktop);
    std::array<std::array<int, 10>, 10> pairs{};
    for (int last = 1, i = 0; i < draws; ++i) {
      const int digit = digits.draw();
      ++pairs.at(last).at(digit);
      last = digit;
    }
    const auto share = [](int digit) { return (digit == 1 ? 1 : digit == 9 ? 3 : 2) / 18.0; };
    double pair = 0;
    for (int a = 1; a <= 9; ++a) {
      for (int b = 1; b <= 9; ++b) {
        const double expected = draws * share(a) * share(b);
        pair += std::pow(pairs[a][b] - expected, 2) / expected;
      }
    }
    EXPECT_LT(pair, 124.8) << "80 degrees of freedom, tick " << tick;
  }
}

}  // namespace tessoro::test
