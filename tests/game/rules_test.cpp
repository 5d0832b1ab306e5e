#include "fixture.h"

namespace tessoro::test {
namespace {

TEST(EvalLineTest, MultipliesFirstAndOtherwiseGoesFromTheLeft) {
  struct Line {
    int a;
    std::string op1;
    int b;
    std::string op2;
    int c;
    int value;
  };
  const std::vector<Line> lines{
      {2, "+", 3, "+", 4, 9},      {9, "-", 3, "-", 4, 2},       {2, "+", 3, "-", 4, 1},
      {2, "-", 3, "+", 4, 3},      {9, "*", 9, "*", 9, 729},     {2, "*", 3, "+", 4, 10},
      {2, "*", 3, "-", 4, 2},      {2, "-", 3, "*", 4, -10},     {2, "+", 3, "*", 4, 14},
      {1, "-", 9, "*", 9, -80},    {2, "-", 1, "-", 1, 0},       {0, "+", 5, "+", 5, -1},
      {5, "+", 5, "+", 0, -1},     {5, "", 5, "+", 5, -1},       {5, "+", 5, "?", 5, -1},
      {5, "+ ", 5, "+", 5, -1},    {5, "", 5, "*", 5, -1},       {181, "*", 181, "+", 6, 32767},
      {181, "*", 181, "+", 7, -1}, {-181, "*", 181, "-", 8, -1}, {300, "*", 300, "-", 32767, -1},
      {1, "+", 200, "*", 200, -1}};
  for (const Line& line : lines) {
    EXPECT_EQ(EvalLine(static_cast<std::int16_t>(line.a), static_cast<std::int16_t>(line.b),
                       static_cast<std::int16_t>(line.c), line.op1, line.op2),
              line.value)
        << line.a << line.op1 << line.b << line.op2 << line.c;
  }
}

TEST(CaptionsTest, ReadsTheLongestDecimalPrefixRoundedHalfToEven) {
  const std::vector<std::pair<std::string, int>> captions{
      {"", 0},    {"?", 0},   {"=", 0},    {"-", 0},  {"+", 0},   {"7", 7},
      {" 7", 7},  {"12", 12}, {"-3x", -3}, {"+4", 4}, {"+-3", 0}, {"2.5", 2},
      {"3.5", 4}, {"inf", 0}, {"nan", 0},  {"5?", 5}, {"1e3", 1}, {"99999", 32767}};
  for (const auto& [caption, number] : captions) EXPECT_EQ(readNumber(caption), number) << caption;
}

class ResultsTest : public GameTest {
 protected:
  void put(const std::vector<std::pair<int, std::string>>& captions) {
    for (const auto& [index, text] : captions) cell(index).caption = text;
  }
};

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
  EXPECT_EQ(caption(7) + caption(45), "51");
  put({{5, "9"}, {17, "2"}});
  game.results.UpdateLines("0100");
  EXPECT_EQ(caption(7) + caption(45), "?1") << "29 is no digit, and the column is not named";
  game.results.UpdateLines("0003");
  EXPECT_EQ(caption(45), "?") << "-1 is no digit";
  put({{17, ""}, {7, "4"}});
  game.results.UpdateLines("");
  EXPECT_EQ(caption(7), "4");
  game.results.UpdateLines("0003");
  EXPECT_EQ(caption(45), "?") << "an empty number";
}

TEST_F(ResultsTest, TheGrandResultIsRow7sUnlessAnyResultIsUnknown) {
  put({{43, "7"},
       {44, "-"},
       {45, "1"},
       {46, "*"},
       {47, "1"},
       {7, "1"},
       {14, "+"},
       {21, "1"},
       {28, "+"},
       {35, "1"}});
  game.results.UpdateCornerResult();
  EXPECT_EQ(caption(49), "6") << "although column 7 gives 3";
  game.results.UpdateLines("0007");
  EXPECT_EQ(caption(49), "3");
  cell(21).caption = "?";
  game.results.UpdateCornerResult();
  EXPECT_EQ(caption(49), "?");
}

}  // namespace
}  // namespace tessoro::test
