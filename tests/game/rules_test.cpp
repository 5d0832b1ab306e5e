#include "fixture.h"

namespace tessoro::test {
namespace {

TEST(EvalLineTest, MultipliesFirstAndOtherwiseGoesFromTheLeft) {
  const auto value = [](int a, std::string_view op1, int b, std::string_view op2, int c) {
    return EvalLine(static_cast<std::int16_t>(a), static_cast<std::int16_t>(b),
                    static_cast<std::int16_t>(c), op1, op2);
  };
  EXPECT_EQ(value(2, "+", 3, "+", 4), 9);
  EXPECT_EQ(value(9, "-", 3, "-", 4), 2);
  EXPECT_EQ(value(2, "+", 3, "-", 4), 1);
  EXPECT_EQ(value(2, "-", 3, "+", 4), 3);
  EXPECT_EQ(value(9, "*", 9, "*", 9), 729);
  EXPECT_EQ(value(2, "*", 3, "+", 4), 10);
  EXPECT_EQ(value(2, "*", 3, "-", 4), 2);
  EXPECT_EQ(value(1, "-", 9, "*", 9), -80);
  EXPECT_EQ(value(2, "+", 3, "*", 4), 14);
  EXPECT_EQ(value(2, "-", 1, "-", 1), 0);
  // No value: an empty number, no operator, or more than 16 bits at any step.
  EXPECT_EQ(value(0, "+", 5, "+", 5), -1);
  EXPECT_EQ(value(5, "+", 0, "+", 5), -1);
  EXPECT_EQ(value(5, "+", 5, "*", 0), -1);
  EXPECT_EQ(value(5, "", 5, "+", 5), -1);
  EXPECT_EQ(value(5, "?", 5, "*", 5), -1);
  EXPECT_EQ(value(5, "+", 5, "+ ", 5), -1);
  EXPECT_EQ(value(181, "*", 181, "+", 6), 32767);
  EXPECT_EQ(value(181, "*", 181, "+", 7), -1);
  EXPECT_EQ(value(300, "*", 300, "-", 32767), -1);
  EXPECT_EQ(value(1, "+", 200, "*", 200), -1);
}

TEST(CaptionsTest, ReadsTheLongestDecimalPrefixRoundedHalfToEven) {
  const std::vector<std::pair<std::string, int>> captions{
      {"", 0},    {"?", 0},   {"=", 0},    {"-", 0},  {"+", 0},   {"7", 7},
      {" 7", 7},  {"12", 12}, {"-3x", -3}, {"+4", 4}, {"+-3", 0}, {"2.5", 2},
      {"3.5", 4}, {"inf", 0}, {"nan", 0},  {"5?", 5}, {"1e3", 1}, {"99999", 32767}};
  for (const auto& [caption, number] : captions) EXPECT_EQ(readNumber(caption), number) << caption;
}

using ResultsTest = GameTest;

TEST_F(ResultsTest, ACodeRecomputesTheRowAndTheColumnItNames) {
  put({{1, "2"},
       {2, "+"},
       {3, "3"},
       {4, "*"},
       {5, "1"},
       {10, "-"},
       {17, "1"},
       {24, "*"},
       {31, "2"}});
  game.results.UpdateLines("0103");
  EXPECT_EQ(captionsOf({7, 45}), "51");
  put({{5, "9"}, {17, "2"}});
  game.results.UpdateLines("0100");
  EXPECT_EQ(captionsOf({7, 45}), "?1") << "29 is no digit, and the column is not named";
  game.results.UpdateLines("0003");
  EXPECT_EQ(caption(45), "?") << "-1 is no digit";
  put({{45, "4"}});
  game.results.UpdateLines("");
  EXPECT_EQ(caption(45), "4");
}

TEST_F(ResultsTest, TheGrandResultIsRow7sUnlessAnyResultIsUnknown) {
  put({{43, "7"}, {44, "-"}, {45, "1"}, {46, "*"}, {47, "1"}});
  put({{7, "1"}, {14, "+"}, {21, "1"}, {28, "+"}, {35, "1"}});
  game.results.UpdateCornerResult();
  EXPECT_EQ(caption(49), "6") << "although column 7 gives 3";
  put({{21, "?"}});
  game.results.UpdateCornerResult();
  EXPECT_EQ(caption(49), "?");
}

}  // namespace
}  // namespace tessoro::test
