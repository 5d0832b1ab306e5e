#include "fixture.h"

namespace tessoro::test {

using SpeechTest = GameTest;

TEST_F(SpeechTest, ACharacterSetsAsksOrTellsWhyNot) {
  for (int i = 1; i <= gridCells; ++i) {
    cell(i).focusWanted = [this, i] { desktop.said.push_back(std::to_string(i)); };
  }
  // Characters typed on a cell of the grid, or on a button for 0 or less, and what is heard; "?" is
  // what means nothing there, a number the cell that is given the focus.
  using Typed = std::tuple<int, std::string, std::string>;
  const auto expect = [&](const std::vector<Typed>& all) {
    for (const auto& [index, characters, sentences] : all) {
      const Cell& on = index > 0 ? cell(index) : index == 0 ? form.NewPuz : form.Solveit;
      std::string heard;
      for (const char it : characters) {
        const bool shift = it == 'N';
        desktop.said.clear();
        if (!on.typed(shift ? 'n' : it, shift)) heard += " | ?";
        for (const auto& sentence : desktop.said) heard += " | " + sentence;
      }
      EXPECT_EQ(heard.substr(3), sentences) << characters << " on " << index;
    }
  };
  const std::string corners = "Corners: top left 7, top right 1, bottom left 3, bottom right 8";
  const std::string digitsOnly = " | A digit from 1 to 9 is set here";
  expect(
      {{0, "ltrcxnN5", corners + " | " + corners + " | ? | ? | ? | 2 | 46 | Nothing is set here"},
       {1, "r5", "Row 1: 7 empty empty empty empty, no value, target 1 | This number is given"},
       {2, "c7N", "Column 2: empty, empty, empty, empty | Plus, minus or times is set here | 46"},
       {36, "r-n", "Row 6: equals, equals, equals, equals | Nothing is set here | 44"},
       {17, "77+-0*l",
        "7, no line has a value yet, corners to get right: top right, bottom left, bottom right | "
        "7 | 8 | 7" +
            digitsOnly + digitsOnly + digitsOnly},
       {18, "-+*5", "minus | plus | times | Plus, minus or times is set here"},
       {7, "5", "Results are worked out, not set"},
       {3, "7", "7"},
       {2, "-", "minus"},
       {4, "+", "plus"},
       {5, "19",
        "1, row 1 is 1, top right is correct | 9, row 1 is 9, top right is wrong, target 1"},
       {3, "+-57",
        "8, row 1 is 8, target 1 | 7, row 1 is 9, target 1 | 5, row 1 is full, no digit, target 1 "
        "| 7, row 1 is 9, target 1"},
       {5, "1r", "1, row 1 is 1, top right is correct | Row 1: 7 minus 7 plus 1 is 1, correct"},
       {8, "*", "times"},
       {15, "5", "5"},
       {22, "+", "plus"},
       {29, "9", "9, column 1 is full, no digit, target 3"},
       {8, "c+", "Column 1: 7 times 5 plus 9, no digit, target 3 | plus"},
       {22, "-", "minus, column 1 is 3, bottom left is correct"},
       {1, "t",
        "Corners: top left 7, correct, top right 1, correct, bottom left 3, correct, bottom right "
        "no value, target 8"},
       {49, "rn", "Row 7: 3 empty no value empty no value, no value, target 8 | 10"}});
  for (int k = 1; k <= 16; ++k) {
    if (cell(numberCells[k]).enabled()) turnTo(numberCells[k], state.SolNumbers[k].substr(1));
    if (k % 8 != 0) turnTo(operatorCells[k], state.SolOperators[k]);
  }
  expect({{46, "-+n",
           "minus, total is 8, bottom right is correct | You got it ! [OK] | The puzzle is over | "
           "The puzzle is over"},
          {3, "+", "The puzzle is over"}});
  form.SolveMx.choose();
  expect({{46, "+n", "Only corners are set in this mode | 49"},
          {49, "3+*n", "3 | 4" + digitsOnly + " | 1"},
          {-1, "tN",
           "Corners: top left not set, top right not set, bottom left not set, bottom right 4 | "
           "43"}});
}

}  // namespace tessoro::test
