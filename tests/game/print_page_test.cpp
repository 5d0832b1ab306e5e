#include "fixture.h"

namespace tessoro::test {

struct PrintPageTest : GameTest {
  void makePuzzle() {
    nextDigits = solutionDigits;
    click(form.NewPuz);
  }
  static std::string puzzle(const std::string& number) {
    return "     Puzzle No " + number + std::string(28, ' ') + "Solution to Puzzle No " + number +
           R"(
     +---+---+---+---+---+---+---+          +---+---+---+---+---+---+---+  
     | 7 |   |   |   |   | = | 1 |          | 7 | - | 7 | + | 1 | = | 1 |  
     |---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  
     |   |///|   |///|   |///|   |          | + |///| + |///| + |///| * |  
     |---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  
     |   |   |   |   |   | = |   |          | 5 | + | 3 | - | 4 | = | 4 |  
     |---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  
     |   |///|   |///|   |///|   |          | - |///| - |///| + |///| * |  
     |---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  
     |   |   |   |   |   | = |   |          | 9 | - | 5 | - | 2 | = | 2 |  
     |---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  
     | = |///| = |///| = |///| = |          | = |///| = |///| = |///| = |  
     |---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  
     | 3 |   |   |   |   | = | 8 |          | 3 | * | 5 | - | 7 | = | 8 |  
     +---+---+---+---+---+---+---+          +---+---+---+---+---+---+---+  
)";
  }
};

TEST_F(PrintPageTest, AsksAboutTheOnlyPuzzle) {
  choose("Print");
  EXPECT_EQ(lastSaid(), "Print Puzzle No(s): 1 [Yes] [No]");
}

TEST_F(PrintPageTest, PrintsTheLastThreePuzzlesBesideTheirSolutions) {
  for (int number = 2; number <= 4; ++number) makePuzzle();
  desktop.answer = platform::Desktop::Answer::yes;
  choose("Print");
  EXPECT_EQ(lastSaid(), "Print Puzzle No(s): 4, 2, 3 [Yes] [No]");
  const std::string blank = std::string(75, ' ') + "\n";
  const std::string gap = blank + blank + blank;
  EXPECT_EQ(desktop.printed,
            "\n\n\n\n" + puzzle("4") + gap + puzzle("2") + gap + puzzle("3") + blank);
  EXPECT_EQ(desktop.printFont, "Courier 12.000000");
  EXPECT_EQ(desktop.documents, 1);
}

}  // namespace tessoro::test
