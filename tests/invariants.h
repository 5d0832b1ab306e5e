#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "app/game.h"
#include "board/captions.h"
#include "rules/eval_line.h"

namespace tessoro::test {

/// What must hold of the game after every event, whatever the player does. It watches one game.
class Invariants {
 public:
  explicit Invariants(const Game& game) : game_(game) { remember(); }

  /// The rule that is broken since the last call; empty if none is. `pressedInPlay` says that the
  /// one event since then was a press on the board while no puzzle was being stated.
  std::string broken(bool pressedInPlay) {
    std::string rule = brokenOnBoard();
    if (rule.empty() && pressedInPlay && lockedBefore_ && look(game_) != lookBefore_) {
      rule = "a press changed a locked board";
    }
    if (rule.empty()) rule = brokenOnPage();
    remember();
    return rule;
  }

  /// Everything the player sees of the board, and what presses on it do.
  static std::string look(const Game& game) {
    std::string all = game.state.BoardLocked ? "locked" : "open";
    if (game.state.SolveMode) all += " set";
    for (const Cell& it : game.form.board.GridDisp) {
      all += it.caption() + '/' + std::to_string(it.backcolor().value) + (it.Visible() ? '+' : '-');
    }
    return all;
  }

 private:
  const Game& game_;
  bool lockedBefore_ = false;
  std::string lookBefore_;
  std::array<std::string, 81> pageBefore_;
  std::int16_t numberBefore_ = 0;

  static bool fits(char text, char look) {
    if (look == '9') return text >= '1' && text <= '9';
    return text == look || (look == '+' && (text == '-' || text == '*'));
  }
  const Cell& cell(int index) const { return game_.form.board.GridDisp[index]; }

  void remember() {
    lockedBefore_ = game_.state.BoardLocked && !game_.state.SolveMode;
    lookBefore_ = look(game_);
    pageBefore_ = game_.page.PrintLines;
    numberBefore_ = game_.state.PuzzleNo;
  }

  std::string brokenOnBoard() const {
    const Form1& form = game_.form;
    const PuzzleState& state = game_.state;
    if (form.NewPuz.Visible() == form.Solveit.Visible()) return "one button below the board";
    if (form.RightMess.Visible() && form.CompMess.Visible()) return "one label above the board";
    for (int index = 1; index <= gridCells; ++index) {
      const CellRole role = roleOf(index);
      const bool isOperator = role == CellRole::rowOperator || role == CellRole::columnOperator;
      const std::string allowed = role == CellRole::equals ? "="
                                  : role == CellRole::hole ? ""
                                  : isOperator             ? "+-*"
                                                           : "?123456789";
      const std::string& caption = cell(index).caption();
      if (caption.size() > 1 || allowed.find(caption) == std::string::npos ||
          (role == CellRole::equals && caption.empty())) {
        return "cells show what their role allows";
      }
    }
    const bool inPlay = !state.SolveMode && !state.BoardLocked && game_.search.SolveFound();
    if (inPlay && cell(1).caption() != trimmed(state.SolNumbers[1]))
      return "cell 1 is the puzzle's";
    for (int k = 1; k <= 4; ++k) {
      if (form.board.NPict[k].Visible() && cell(CornerCells[k]).backcolor() != ColGreen) {
        return "faces smile over green corners";
      }
      if (cell(CornerCells[k]).enabled() != state.SolveMode)
        return "corners are for stating puzzles";
    }
    return {};
  }

  std::string brokenOnPage() const {
    const auto& lines = game_.page.PrintLines;
    const std::int16_t number = game_.state.PuzzleNo;
    if (lines == pageBefore_) return number == numberBefore_ ? "" : "numbers count successes";
    if (number != (numberBefore_ == 32767 ? 1 : numberBefore_ + 1))
      return "numbers count successes";
    const int heading = PrintPage::headings[(number - 1) % 3];
    const std::string no = " " + std::to_string(number);
    if (lines[heading] != "Puzzle No" + no + std::string(28, ' ') + "Solution to Puzzle No" + no) {
      return "a puzzle's slot is headed by its number";
    }
    for (int line = 1; line <= 55; ++line) {
      if ((line < heading || line > heading + 15) && lines[line] != pageBefore_[line]) {
        return "a puzzle is written into its slot alone";
      }
    }
    return brokenInSlot(heading);
  }

  /// Reads the slot from the paper: a puzzle beside its solution, whose every line is true. In the
  /// rows of the board as they are to look, 9 is any digit and + any operator.
  std::string brokenInSlot(int heading) const {
    static constexpr std::array<std::string_view, 15> slot{
        "+---+---+---+---+---+---+---+          +---+---+---+---+---+---+---+  ",
        "| 9 |   |   |   |   | = | 9 |          | 9 | + | 9 | + | 9 | = | 9 |  ",
        "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  ",
        "|   |///|   |///|   |///|   |          | + |///| + |///| + |///| + |  ",
        "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  ",
        "|   |   |   |   |   | = |   |          | 9 | + | 9 | + | 9 | = | 9 |  ",
        "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  ",
        "|   |///|   |///|   |///|   |          | + |///| + |///| + |///| + |  ",
        "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  ",
        "|   |   |   |   |   | = |   |          | 9 | + | 9 | + | 9 | = | 9 |  ",
        "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  ",
        "| = |///| = |///| = |///| = |          | = |///| = |///| = |///| = |  ",
        "|---|---|---|---|---|---|---|          |---|---|---|---|---|---|---|  ",
        "| 9 |   |   |   |   | = | 9 |          | 9 | + | 9 | + | 9 | = | 9 |  ",
        "+---+---+---+---+---+---+---+          +---+---+---+---+---+---+---+  "};
    const auto& lines = game_.page.PrintLines;
    for (int line = 1; line <= 15; ++line) {
      const std::string& text = lines[heading + line];
      if (!std::equal(text.begin(), text.end(), slot[line - 1].begin(), slot[line - 1].end(),
                      fits)) {
        return "the page is well formed: " + text;
      }
    }
    const auto at = [&](int grid, int row, int column) {
      return lines[heading + 2 * row][grid + 4 * column - 3];
    };
    for (int line = 1; line <= 7; line += 2) {
      const auto holds = [&](auto cellAt) {
        const auto number = [&](int place) { return readNumber(std::string(1, cellAt(place))); };
        const int value = EvalLine(number(1), number(3), number(5), std::string(1, cellAt(2)),
                                   std::string(1, cellAt(4)));
        return value == number(7) && value >= 1 && value <= 9 && cellAt(6) == '=';
      };
      if (!holds([&](int place) { return at(40, line, place); }) ||
          !holds([&](int place) { return at(40, place, line); })) {
        return "every printed solution is true";
      }
    }
    return {};
  }
};

/// The number in an environment variable, or the usual one.
inline unsigned fromEnvironment(const char* name, unsigned usual) {
  const char* text = std::getenv(name);
  return text == nullptr ? usual : static_cast<unsigned>(std::strtoul(text, nullptr, 10));
}

}  // namespace tessoro::test
