#include <array>
#include <cmath>

#include "fixture.h"

namespace tessoro::test {
namespace {

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

TEST_F(SearchTest, TheTableDecidesAndARowThatDoesNotFitIsDrawnAgainAlone) {
  SolutionAttempt attempt(state, digits);
  const auto choose = [&](const std::string& line, std::int16_t target) {
    for (int k = 0; k < 3; ++k) state.SolNumbers[1 + k] = {' ', line[k]};
    state.TargetTR = target;
    attempt.ChooseRowPair(1);
    return std::string(attempt.LineOp1) + std::string(attempt.LineOp2) +
           std::string(attempt.LineResult);
  };
  EXPECT_EQ(choose("123", 0), "++ 6");
  EXPECT_EQ(choose("999", 0), "+- 9");
  EXPECT_EQ(choose("199", -1), "+- 1");
  EXPECT_EQ(choose("823", 2), "-* 2");
  EXPECT_EQ(choose("234", 5), "???");
  // 2, 3, 4 gives no 5; the drawn 9 gives way to the fixed 2 both times; then 2 + 1 * 3.
  state.TargetTL = 2;
  state.TargetTR = 5;
  digits.script = {9, 3, 4, 9, 1, 3};
  attempt.run();
  EXPECT_EQ(state.SolNumbers[1] + state.SolNumbers[2] + state.SolNumbers[3], " 2 1 3");
  EXPECT_EQ(state.SolOperators[1] + state.SolOperators[2], "+*");
}

TEST_F(SearchTest, EverySolutionIsTrueAndKeepsTheFixedCorners) {
  int found = 0;
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
    ASSERT_TRUE(isTrueSolution(state));
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

}  // namespace
}  // namespace tessoro::test
