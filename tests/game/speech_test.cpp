#include "fixture.h"

namespace tessoro::test {

struct SpeechTest : GameTest {
  Log heard() { return std::exchange(desktop.said, {}); }
  /// What is heard of characters typed on a cell of the grid, or on a button for 0 or less; where
  /// the focus goes, as the cell's number.
  std::string afterTyping(int index, const std::string& characters) {
    for (int i = 1; i <= gridCells; ++i) {
      cell(i).focusWanted = [this, i] { desktop.said.push_back(std::to_string(i)); };
    }
    const Cell& on = index > 0 ? cell(index) : index == 0 ? form.NewPuz : form.Solveit;
    for (const char it : characters) {
      const bool shift = it >= 'A' && it <= 'Z';
      if (!on.typed(static_cast<char>(shift ? it - 'A' + 'a' : it), shift)) {
        desktop.said.emplace_back("means nothing");
      }
    }
    std::string all;
    for (const auto& it : heard()) all += (all.empty() ? "" : " | ") + it;
    return all;
  }
};

TEST_F(SpeechTest, ACharacterSetsAsksOrTellsWhyNot) {
  using Typed = std::tuple<int, std::string, std::string>;
  const auto expect = [&](const std::vector<Typed>& all) {
    for (const auto& [index, characters, sentences] : all) {
      EXPECT_EQ(afterTyping(index, characters), sentences) << characters << " on " << index;
    }
  };
  const std::string corners = "Corners: top left 7, top right 1, bottom left 3, bottom right 8";
  const std::string digitsOnly = "A digit from 1 to 9 is set here";
  expect(
      {{0, "lt", corners + " | " + corners},
       {0, "rcxnN5",
        "means nothing | means nothing | means nothing | 2 | 46 | Nothing is set here"},
       {1, "rn", "Row 1: 7 empty empty empty empty, no value, target 1 | 2"},
       {1, "5+", "This number is given | This number is given"},
       {2, "c7N", "Column 2: empty, empty, empty, empty | Plus, minus or times is set here | 46"},
       {36, "r-n", "Row 6: equals, equals, equals, equals | Nothing is set here | 44"},
       {17, "7",
        "7, no line has a value yet, corners to get right: top right, bottom left, bottom right"},
       {17, "7+-0*l", "7 | 8 | 7 | " + digitsOnly + " | " + digitsOnly + " | " + digitsOnly},
       {18, "-+*5", "minus | plus | times | Plus, minus or times is set here"},
       {7, "5", "Results are worked out, not set"},
       {3, "7", "7"},
       {2, "-", "minus"},
       {4, "+", "plus"},
       {5, "1", "1, row 1 is 1, top right is correct"},
       {5, "9", "9, row 1 is 9, top right is wrong, target 1"},
       {3, "+", "8, row 1 is 8, target 1"},
       {3, "-5", "7, row 1 is 9, target 1 | 5, row 1 is full, no digit, target 1"},
       {3, "7", "7, row 1 is 9, target 1"},
       {5, "1", "1, row 1 is 1, top right is correct"},
       {3, "r", "Row 1: 7 minus 7 plus 1 is 1, correct"},
       {8, "*", "times"},
       {15, "5", "5"},
       {22, "+", "plus"},
       {29, "9", "9, column 1 is full, no digit, target 3"},
       {8, "c", "Column 1: 7 times 5 plus 9, no digit, target 3"},
       {8, "+", "plus"},
       {22, "-", "minus, column 1 is 3, bottom left is correct"},
       {1, "t",
        "Corners: top left 7, correct, top right 1, correct, bottom left 3, correct, bottom right "
        "no value, target 8"},
       {49, "rn", "Row 7: 3 empty no value empty no value, no value, target 8 | 10"}});
  for (int k = 1; k <= 16; ++k) {
    if (cell(numberCells[k]).enabled()) turnTo(numberCells[k], state.SolNumbers[k].substr(1));
    if (k % 8 != 0) turnTo(operatorCells[k], state.SolOperators[k]);
  }
  heard();
  expect({{46, "-", "minus, total is 8, bottom right is correct | You got it ! [OK]"},
          {46, "+n", "The puzzle is over | The puzzle is over"},
          {3, "+", "The puzzle is over"}});
  form.SolveMx.choose();
  form.Solveit.press({});
  expect({{46, "+n",
           "Set each corner to its number, then press Solve Puzzle | Set the corners first | Only "
           "corners are set in this mode | 49"},
          {49, "3+*n", "3 | 4 | " + digitsOnly + " | 1"},
          {-1, "tN",
           "Corners: top left not set, top right not set, bottom left not set, bottom right 4 | "
           "43"}});
}

TEST_F(SpeechTest, CommandsTellWhatThereIsToKnow) {
  form.ShowSolx.choose();
  script = "9129315941199999";
  form.StartSolx.choose();
  script = known;
  desktop.onYield = [this] { form.PrintX.choose(); };
  clickButton(form.NewPuz);
  desktop.onYield = [] {};
  form.SolveMx.choose();
  press(3);
  clickButton(form.Solveit);
  for (const int corner : {1, 7, 43, 49}) press(corner, platform::MouseButton::right);
  state.TargetTL = state.TargetTR = state.TargetBL = 0;
  state.TargetBR = 3;
  for (int row = 0; row < 500 * 3; ++row) script += "911";
  clickButton(form.Solveit);
  state.TargetBR = 0;
  script = known;
  for (int click = 0; click < 2; ++click) clickButton(form.Solveit);
  form.SolveMx.choose();
  EXPECT_EQ(heard(),
            (Log{"The solution is shown, and the puzzle is over",
                 "Random start. Corners: top left 7, correct, top right no digit, target 1, bottom "
                 "left no digit, target 3, bottom right no value, target 8",
                 "Print Puzzle No(s): 1 [Yes] [No]",
                 "Puzzle 2. Corners: top left 7, top right 1, bottom left 3, bottom right 8",
                 "Set each corner to its number, then press Solve Puzzle",
                 "Only corners are set in this mode", "set corner numbers first [OK]", "9", "9",
                 "9", "9", "Cannot Solve This Time ! [OK]", "Solved as puzzle 3",
                 "Solved already: change a corner, or press any number to solve it again",
                 "Back from setting puzzles. Press New Puzzle to play on"}));
}

}  // namespace tessoro::test
