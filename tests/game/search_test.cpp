#include <array>
#include <cmath>
#include <set>

#include "fixture.h"

namespace tessoro::test {
namespace {

using SearchTest = GameTest;

const std::deque<int> workedAttempt{1, 2, 3, 4, 1, 2, 2, 2, 1};

TEST_F(SearchTest, TheWholeWorkedAttempt) {
  digits.script = workedAttempt;
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
  EXPECT_TRUE(game.search.SolveFound());
}

TEST_F(SearchTest, ARowThatFitsNoPairIsDrawnAgainAlone) {
  state.TargetTL = 2;
  state.TargetTR = 5;
  // 2, 3, 4 gives no 5; the drawn 9 gives way to the fixed 2 both times; then 2 + 1 * 3.
  digits.script = {9, 3, 4, 9, 1, 3};
  SolutionAttempt attempt(state, digits);
  attempt.run();
  EXPECT_EQ(state.SolNumbers[1] + state.SolNumbers[2] + state.SolNumbers[3], " 2 1 3");
  EXPECT_EQ(state.SolOperators[1] + state.SolOperators[2], "+*");
}

TEST_F(SearchTest, PairsAreTakenInTheOrderOfTheTable) {
  SolutionAttempt attempt(state, digits);
  const auto choose = [&](const std::string& row, std::int16_t target) {
    for (int k = 0; k < 3; ++k) state.SolNumbers[1 + k] = {' ', row[k]};
    state.TargetTR = target;
    attempt.ChooseRowPair(1);
    return std::string(attempt.LineOp1) + std::string(attempt.LineOp2) + attempt.LineResult;
  };
  EXPECT_EQ(choose("123", 0), "++ 6");
  EXPECT_EQ(choose("999", 0), "+- 9");
  EXPECT_EQ(choose("199", -1), "+- 1");
  EXPECT_EQ(choose("823", 2), "-* 2");
  EXPECT_EQ(choose("234", 5), "???");

  // The grand total: results row 1, 2, 3 and results column 2, 2, 2.
  const auto match = [&](std::int16_t target) {
    state.TargetBR = 0;
    const std::array<const char*, 17> numbers{"", "", "", "",   " 2", "",   "",   "", " 2",
                                              "", "", "", " 2", " 1", " 2", " 3", ""};
    for (int k = 1; k <= 16; ++k) state.SolNumbers[k] = numbers[k];
    attempt.ChooseColPair(4);
    attempt.ColPairValue = attempt.PairValue;
    attempt.ChooseRowPair(13);
    attempt.RowPairValue = attempt.PairValue;
    state.TargetBR = target;
    attempt.MatchGrandTotal();
    const auto& op = state.SolOperators;
    return op[7] + op[8] + op[15] + op[16] + state.SolNumbers[16] + attempt.LineResult;
  };
  EXPECT_EQ(match(0), "++++ 6");
  EXPECT_EQ(match(2), "-++- 2");
}

TEST_F(SearchTest, EverySolutionIsTrueAndKeepsTheFixedCorners) {
  int found = 0;
  for (int fixed = 0; fixed <= 15; ++fixed) {
    for (int search = 0; search < 400; ++search) {
      for (int k = 1; k <= 4; ++k) {
        const bool isFixed = (fixed >> (k - 1) & 1) != 0;
        state.*cornerTargets[k] =
            static_cast<std::int16_t>(isFixed ? digits.draw() : -(search % 2));
      }
      game.search.FindSolution();
      if (!game.search.SolveFound()) continue;
      ++found;
      ASSERT_TRUE(isTrueSolution(state));
      for (int k = 1; k <= 4; ++k) {
        const int target = state.*cornerTargets[k];
        ASSERT_TRUE(target <= 0 || readNumber(state.SolNumbers[cornerNumbers[k]]) == target);
      }
      if (fixed == 0) {
        ASSERT_EQ(found, search + 1) << "with free corners a search does not give up";
      }
    }
  }
  EXPECT_GT(found, 3000);
}

TEST_F(SearchTest, GivesUpAfter500AttemptsAndGivesTheNumberBack) {
  // The results row 9, 3, 3 can give the 3 asked for, but the results column 9, 9, 9 cannot: every
  // attempt fails at its last step.
  state.TargetBR = 3;
  state.PuzzleNo = 32767;
  const std::string corners = captionsOf({1, 7, 43, 49});
  press(3);
  const auto page = game.page.PrintLines;
  for (int attempt = 0; attempt < 501; ++attempt) {
    digits.script.insert(digits.script.end(), {9, 1, 1, 9, 1, 1, 9, 1, 1});
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
  for (int index = 1; index <= 49; ++index) {
    const bool corner = index == 1 || index == 7 || index == 43 || index == 49;
    if (!corner) {
      EXPECT_EQ(caption(index), roleOf(index) == CellRole::equals ? "=" : "") << index;
    }
  }
  EXPECT_EQ(caption(1), corners.substr(0, 1));

  digits.script.clear();
  state.TargetBR = -1;
  game.search.FindSolution();
  EXPECT_EQ(state.PuzzleNo, 1);
  EXPECT_EQ(game.page.PrintLines[1].substr(0, 12), "Puzzle No 1 ");
}

TEST_F(SearchTest, PressesThatArriveDuringASearchAreIgnored) {
  bool pressed = false;
  desktop.onYield = [&] {
    press(3);
    press(2);
    pressed = true;
  };
  game.search.FindSolution();
  desktop.onYield = nullptr;
  EXPECT_TRUE(pressed);
  EXPECT_EQ(captionsOf({2, 3}), "..");
  press(3);
  EXPECT_EQ(caption(3), "1");
}

TEST_F(SearchTest, ExitDuringASearchEndsEverything) {
  desktop.onYield = [&] { form.Exitx.choose(); };
  EXPECT_THROW(game.search.FindSolution(), ProgramEnded);
  EXPECT_TRUE(desktop.messages.empty());
}

/// The distribution of the digits, and the absence of any tie between neighbours, by chi-squared
/// tests; with the seeds fixed by the clock the outcome is the same in every run.
TEST(DigitsTest, TheDistributionHoldsWhateverTheClockDoes) {
  constexpr int draws = 180000;
  for (const double tick : {1e-7, 0.0, 0.125, -3.5}) {
    FakeDesktop desktop;
    desktop.tick = tick;
    ReseededDigits digits(desktop);
    std::array<int, 10> count{};
    std::array<std::array<int, 10>, 10> pairs{};
    int last = 1;
    for (int i = 0; i < draws; ++i) {
      const int digit = digits.draw();
      ++count.at(digit);
      ++pairs[last][digit];
      last = digit;
    }
    const auto share = [](int digit) {
      return digit == 1 ? 1 / 18.0 : digit == 9 ? 3 / 18.0 : 2 / 18.0;
    };
    double single = 0;
    double pair = 0;
    for (int a = 1; a <= 9; ++a) {
      single += std::pow(count[a] - draws * share(a), 2) / (draws * share(a));
      for (int b = 1; b <= 9; ++b) {
        const double expected = draws * share(a) * share(b);
        pair += std::pow(pairs[a][b] - expected, 2) / expected;
      }
    }
    EXPECT_LT(single, 26.1) << "8 degrees of freedom, 0.1 %; tick " << tick;
    EXPECT_LT(pair, 124.8) << "80 degrees of freedom, 0.1 %; tick " << tick;
    EXPECT_EQ(count[0], 0);
  }
}

TEST(DigitsTest, AStuckClockNeitherRepeatsNorStalls) {
  FakeDesktop desktop;
  desktop.tick = 0;
  ReseededDigits digits(desktop);
  std::set<std::string> sequences;
  for (int i = 0; i < 1000; ++i) {
    std::string sequence;
    for (int k = 0; k < 16; ++k) sequence += static_cast<char>('0' + digits.draw());
    sequences.insert(sequence);
  }
  EXPECT_EQ(sequences.size(), 1000U);
}

}  // namespace
}  // namespace tessoro::test
