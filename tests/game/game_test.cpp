#include <cstdlib>
#include <iostream>
#include <random>

#include "fixture.h"

namespace tessoro::test {

using enum platform::MouseButton;

TEST_F(GameTest, APuzzleFromItsFirstMoveToTheNextPuzzle) {
  const std::string fresh =
      "; Get corner numbers right; New Puzzle\nSet a Puzzle for computer to solve:    \n"
      "g7_._._._. =g1" +
      emptyRows + "g3_. ._. . =g8";
  EXPECT_EQ(look(), "Puzzle Number  1" + fresh);
  press(17);
  EXPECT_EQ(look(),
            "Puzzle Number  1; Get corner numbers right; New Puzzle\n"
            "Set a Puzzle for computer to solve: :) g1 g3 g8\n"
            "g7_._._._. =b?\n_.#._.#._.#._.\n_._._1_._. = ?\n_.#._.#._.#._.\n_._._._._. = ?\n"
            " =#. =#. =#. =\nb?_. ?_. ? =b?");
  game.moves.GridDisp_MouseDown(50, {});
  EXPECT_EQ(caption(50) + caption(0), "7") << "cell 50 is not of the grid, cell 0 out of sight";
  std::string stepped;
  for (const auto button : {left, right, right, right, middle, other}) {
    press(17, button);
    press(18, button);
    stepped += caption(17) + caption(18) + " ";
  }
  EXPECT_EQ(stepped, "2+ 1- 9* 8+ 9- 1* ");

  for (int k = 1; k <= 16; ++k) {
    turnTo(operatorCells[k], state.SolOperators[k]);
    if (numberCells[k] != 33) turnTo(numberCells[k], state.SolNumbers[k].substr(1));
  }
  turnTo(33, "2");
  EXPECT_EQ(desktop.log, Log{"You got it ! [OK]"});
  const std::string solved =
      "; New Puzzle\nSet a Puzzle for computer to solve: :) :) :) :); over\n"
      "g7_-_7_+_1 =g1" +
      knownRows + "g3_* 5_- 7 =g8";
  EXPECT_EQ(look(), "Puzzle Number  1" + solved);

  script = known;
  clickButton(form.NewPuz);
  EXPECT_EQ(look(), "Puzzle Number  2" + fresh);
  press(17);
  form.ShowSolx.choose();
  EXPECT_EQ(look(), "Puzzle Number  2" + solved);
  EXPECT_EQ(desktop.said.back(), "The solution is shown, and the puzzle is over");

  script = "9129315941199999";
  state.SolveMode = true;
  form.StartSolx.choose();
  EXPECT_EQ(look(),
            "Puzzle Number  2; New Puzzle\nSet a Puzzle for computer to solve: :) g1 g3 g8\n"
            "g7_+_1_+_2 =b?\n_+#._+#._+#._+\n_3_+_1_+_5 = 9\n_+#._+#._+#._+\n_4_+_1_+_1 = 6\n"
            " =#. =#. =#. =\nb?_+ 3_+ 8 =b?");
  EXPECT_TRUE(desktop.said.back().starts_with("Random start. Corners: top left 7, correct, "));
  state.SolNumbers[16].clear();
  press(17);
  EXPECT_TRUE(form.RightMess.Visible());
  EXPECT_FALSE(form.board.NPict[4].Visible()) << "there is nothing to be right";
}

TEST_F(GameTest, SetAPuzzleFromEnteringToLeaving) {
  press(3);
  desktop.said.clear();
  form.SolveMx.choose();
  const std::string stating =
      "\nEnd computer solution mode:    ; no Start a Solution; no Show Solution; ";
  EXPECT_EQ(look(), "Puzzle Number  1; Click corners to set Puzzle; (Solve Puzzle)" + stating +
                        "targets 0 0 0 0\nR?_._._._. =R?" + emptyRows + "R?_. ._. . =R?");
  clickButton(form.Solveit);
  press(3);  // no corner, but a press
  for (const int corner : {1, 7, 43}) press(corner, right);
  const std::string before = look();
  clickButton(form.Solveit);
  form.Solveit.press({.button = right});
  EXPECT_EQ(desktop.said, (Log{"Set each corner to its number, then press Solve Puzzle",
                               "Set the corners first", "Only corners are set in this mode", "9",
                               "9", "9", "set corner numbers first [OK]", "Help Here [OK]"}));
  EXPECT_EQ(look() + caption(3), before);

  // The results row 9, 3, 3 can give the 3 asked for, but the results column 9, 9, 9 cannot: every
  // attempt fails at its last step, and the 501st is not made.
  turnTo(49, "3");
  state.TargetTL = state.TargetTR = state.TargetBL = 0;
  state.PuzzleNo = 32767;
  cell(3).caption = "5";
  for (int row = 0; row < 501 * 3; ++row) script += "911";
  clickButton(form.Solveit);
  EXPECT_EQ(desktop.said.back(), "Cannot Solve This Time ! [OK]");
  EXPECT_EQ(script, "911911911");
  EXPECT_EQ(look(), "Puzzle Number  1; Click corners to set Puzzle; Solve Puzzle" + stating +
                        "targets 0 0 0 3\nR9_._._._. =R9" + emptyRows + "R9_. ._. . =R3");

  for (int k = 1; k <= 4; ++k) turnTo(CornerCells[k], std::string(1, "7138"[k - 1]));
  script = "9" + known.substr(1);  // the first is drawn for nothing
  desktop.said.clear();
  for (int click = 0; click < 2; ++click) clickButton(form.Solveit);
  EXPECT_EQ(look(), "Puzzle Number  1; Click corners to set Puzzle; (Solve Puzzle)" + stating +
                        "over; targets 7 1 3 8\nR7_-_7_+_1 =R1" + knownRows + "R3_* 5_- 7 =R8");
  press(49);
  form.SolveMx.choose();
  EXPECT_EQ(
      desktop.said,
      (Log{"Solved as puzzle 1",
           "Solved already: change a corner, or press a number or operator cell to solve it again",
           "9", "Back from setting puzzles. Press New Puzzle to play on"}));
  EXPECT_EQ(look(),
            "Puzzle Number  1; New Puzzle\nSet a Puzzle for computer to Solve:    ; over\n"
            "g7_-_7_+_1 =g1" +
                knownRows + "g3_* 5_- 7 =g9");
  form.SolveMx.choose();
  form.SolveMx.choose();
  EXPECT_TRUE(state.BoardLocked) << "also without a search";
}

TEST_F(GameTest, HelpAboutAndPrintAlsoWhileASearchRuns) {
  desktop.onYield = [this] {
    for (const auto* item : {&form.Helpx, &form.Aboutx, &form.PrintX}) item->choose();
    EXPECT_THROW(form.Exitx.choose(), ProgramEnded);
    EXPECT_THROW(form.unload(), ProgramEnded);
    desktop.onYield = [] {};
  };
  for (const int number : {1, 2, 32766}) {
    state.PuzzleNo = static_cast<std::int16_t>(number);
    script = known;
    clickButton(form.NewPuz);
  }
  EXPECT_EQ(desktop.said[1], "Puzzle 2. " + corners);
  desktop.answer = platform::Desktop::Answer::yes;
  form.PrintX.choose();
  std::string printed;
  for (const auto& line : desktop.log) printed += line + "\n";
  const auto slot = [](const std::string& no) {
    return "     Puzzle No " + no + std::string(28, ' ') + "Solution to Puzzle No " + no + R"(
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
  };
  const std::string blank = std::string(75, ' ') + "\n";
  const std::string gap = blank + blank + blank;
  EXPECT_EQ(printed,
            "Puzzle Number  2\nqaviro.hlp\n3\nAbout Tessoro\nPrint Puzzle No(s): 1 [Yes] "
            "[No]\nPrint Puzzle No(s): 32767, 2, 3 [Yes] [No]\n"
            "Courier\n12.000000\n\n\n\n\n" +
                slot("32767") + gap + slot("2") + gap + slot("3") + blank + "end\n");
}

TEST_F(GameTest, ACharacterSetsAsksOrTellsWhyNot) {
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
  const std::string digitsOnly = " | A digit from 1 to 9 is set here";
  expect(
      {{0, "ltrcqnN5", corners + " | " + corners + " | ? | ? | ? | 2 | 46 | Nothing is set here"},
       {1, "r5", "Row 1: 7 empty empty empty empty, no value, target 1 | This number is given"},
       {2, "c7N", "Column 2: empty, empty, empty, empty | Plus, minus or times is set here | 46"},
       {36, "r-n", "Row 6: equals, equals, equals, equals | Nothing is set here | 44"},
       {17, "77+-0*l",
        "7, no line has a value yet | 7 | 8 | 7" + digitsOnly + digitsOnly + digitsOnly},
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
       {10, "*", "times"},
       {24, "+", "plus"},
       {31, "9", "9, column 3 is full, no digit"},
       {10, "c-", "Column 3: 7 times 7 plus 9, no digit | minus, column 3 is 9"},
       {1, "t",
        "Corners: top left 7, correct, top right 1, correct, bottom left no value, target 3, "
        "bottom right no value, target 8"},
       {49, "rn", "Row 7: no value empty 9 empty no value, no value, target 8 | 8"}});
  for (int k = 1; k <= 16; ++k) {
    if (cell(numberCells[k]).enabled()) turnTo(numberCells[k], state.SolNumbers[k].substr(1));
    if (k % 8 != 0) turnTo(operatorCells[k], state.SolOperators[k]);
  }
  expect({{46, "-+n",
           "minus, total is 8, bottom right is correct | You got it ! [OK] | The puzzle is over | "
           "The puzzle is over"}});
  form.SolveMx.choose();
  expect({{46, "+n", "Only corners are set in this mode | 49"},
          {49, "3+*n", "3 | 4" + digitsOnly + " | 1"},
          {-1, "tN",
           "Corners: top left not set, top right not set, bottom left not set, bottom right 4 | "
           "43"}});
}

using RandomPlayerTest = GameTest;

/// Presses anything and chooses any command at any time, also while a search runs, under a clock
/// that stands still or jumps. TESSORO_SEED plays the same again.
TEST_F(RandomPlayerTest, NoRuleIsEverBroken) {
  const char* last = std::getenv("TESSORO_SEED");
  const auto seed = last == nullptr ? std::random_device{}() : std::stoul(last);
  std::cout << "TESSORO_SEED=" << seed << '\n';
  std::mt19937 random(seed);
  const auto below = [&](unsigned end) { return static_cast<int>(random() % end); };
  int pressed = 0;
  const auto event = [&] {
    if (below(50) == 0) desktop.tick = below(2) * (below(2000) - 1000.5);
    if (const int kind = game.search.underWay() ? 7 + below(3) : below(10); kind < 8) {
      pressed = below(boardCells);
      press(pressed, std::array{left, right, middle}.at(below(3)));
    } else if (kind == 8) {
      clickButton(below(2) == 0 ? form.NewPuz : form.Solveit);
    } else {
      form.Gamex.items[below(10)]->choose();  // anything but Exit
    }
  };
  desktop.onYield = [&] {
    const std::string before = look();
    if (below(3) == 0) event();
    pressed = 0;
    EXPECT_EQ(look(), before) << "a running search is left alone";
  };
  Invariants invariants(game);
  for (int events = 0; events < 200000; ++events) {
    pressed = 0;
    event();
    EXPECT_EQ(invariants.broken(pressed, desktop.said.empty() ? "" : desktop.said[0]), "");
    ASSERT_FALSE(HasFailure()) << look();
    desktop.log.clear();
    desktop.said.clear();
  }
}

}  // namespace tessoro::test
