#include <sstream>

#include "fixture.h"
#include "rules/eval_line.h"

namespace tessoro::test {

TEST(EvalLineTest, MultipliesFirstAndOtherwiseGoesFromTheLeft) {
  for (const char* line :
       {"2 + 3 + 4 = 9", "9 - 3 - 4 = 2", "2 + 3 - 4 = 1", "2 - 3 + 4 = 3", "9 * 9 * 9 = 729",
        "2 * 3 + 4 = 10", "2 * 3 - 4 = 2", "1 - 9 * 9 = -80", "2 + 3 * 4 = 14",
        // No value: an empty number, no operator, or more than 16 bits at any step.
        "0 + 5 + 5 = -1", "5 + 0 + 5 = -1", "5 + 5 * 0 = -1", "5 ? 5 * 5 = -1", "5 + 5 ++ 5 = -1",
        "181 * 181 + 6 = 32767", "181 * 181 + 7 = -1", "300 * 300 - 32767 = -1",
        "1 + 200 * 200 = -1"}) {
    std::istringstream parts(line);
    std::int16_t a = 0, b = 0, c = 0, value = 0;
    std::string op1, op2, equals;
    parts >> a >> op1 >> b >> op2 >> c >> equals >> value;
    EXPECT_EQ(EvalLine(a, b, c, op1, op2), value) << line;
  }
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
  game.results.UpdateLines("");
  EXPECT_EQ(captionsOf({7, 45}), "?1") << "29 is no digit, and the column is not named";
  game.results.UpdateLines("0003");
  EXPECT_EQ(caption(45), "?") << "-1 is no digit";

  put({{43, "7"}, {44, "-"}, {45, "1"}, {46, "*"}, {47, "1"}});
  put({{7, "1"}, {14, "+"}, {21, "1"}, {28, "+"}, {35, "1"}});
  game.results.UpdateCornerResult();
  EXPECT_EQ(caption(49), "6") << "although column 7 gives 3";
  put({{21, "?"}});
  game.results.UpdateCornerResult();
  EXPECT_EQ(caption(49), "?");
}

}  // namespace tessoro::test
