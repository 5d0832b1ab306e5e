#include <cmath>

#include "fixture.h"
#include "rules/eval_line.h"

namespace tessoro::test {

TEST(EvalLineTest, MultipliesFirstAndOtherwiseGoesFromTheLeft) {
  for (const std::string line :
       {"2+3+4=9", "9-3-4=2", "2+3-4=1", "2-3+4=3", "9*9*9=729", "2*3+4=10", "2*3-4=2", "1-9*9=-80",
        "2+3*4=14", "0+5+5=-1", "5+0+5=-1", "5+5*0=-1", "5?5*5=-1", "5+5 5=-1"}) {
    const auto number = [&](int at) { return static_cast<std::int16_t>(line[at] - '0'); };
    EXPECT_EQ(EvalLine(number(0), number(2), number(4), line.substr(1, 1), line.substr(3, 1)),
              std::stoi(line.substr(6)));
  }
  EXPECT_EQ(EvalLine(300, 300, 32767, "*", "-"), -1) << "more than 16 bits";
}

TEST(CaptionsTest, ReadsTheLongestDecimalPrefixRoundedHalfToEven) {
  const std::vector<std::pair<std::string, int>> captions{
      {"", 0},    {":", 0},   {"1", 1},    {"9", 9},  {"  6", 6}, {"2.5", 2},      {"3.5", 4},
      {"inf", 0}, {"1e3", 1}, {"-3x", -3}, {"+4", 4}, {"+-3", 0}, {"99999", 32767}};
  for (const auto& [caption, number] : captions) EXPECT_EQ(readNumber(caption), number) << caption;
  EXPECT_EQ(trimmed("  6 "), "6");
}

TEST_F(GameTest, TheGrandTotalTakesTheFirstPairsThatFit) {
  SolutionAttempt attempt(state, *this);
  script = known;
  attempt.run();
  for (std::size_t k = 1; k <= 9; ++k) {
    const auto number = [&](int at) { return readNumber(state.SolNumbers[at]); };
    EXPECT_EQ(attempt.RowPairValue[k], EvalLine(number(13), number(14), number(15),
                                                OpPairs[k].substr(0, 1), OpPairs[k].substr(1)));
  }
  std::string taken;
  for (std::size_t first = 1; first <= 9; ++first) {
    attempt.RowPairValue = attempt.ColPairValue = {};  // equal, but no digit
    for (std::size_t k = first; k <= 9; ++k) attempt.RowPairValue[k] = 9;
    attempt.ColPairValue[10 - first] = 9;
    attempt.MatchGrandTotal();
    for (const int k : {7, 8, 15, 16}) taken += state.SolOperators[k];
    taken += ' ';
  }
  EXPECT_EQ(taken, "++** +-*- ---* -+*+ +*+* *+-+ -*-- *-+- **++ ");
}

/// The clock is the only seed, so that the outcome is the same in every run.
TEST_F(GameTest, DigitsHaveTheirDistributionWhateverTheClockDoes) {
  for (const double tick : {1e-6, 0.0, 0.125, -3.5}) {
    desktop.clock = 30000;
    desktop.tick = tick;
    ReseededDigits fresh(desktop);
    std::array<int, 10> counts{};
    for (int i = 0; i < 324000; ++i) ++counts.at(fresh.draw());
    constexpr std::array<int, 10> share{0, 1, 2, 2, 2, 2, 2, 2, 2, 3};  // of 18
    for (int digit = 0; digit < 10; ++digit) {
      const int expected = 18000 * share[digit];
      EXPECT_NEAR(counts[digit], expected, 4 * std::sqrt(expected)) << digit << ", tick " << tick;
    }
  }
}

}  // namespace tessoro::test
