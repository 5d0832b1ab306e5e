#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "app/game.h"
#include "app/spoken_board.h"
#include "board/captions.h"
#include "rules/eval_line.h"

namespace tessoro::test {

/// What must hold of the game after every event, whatever the player does. It watches one game.
class Invariants {
 public:
  explicit Invariants(const Game& game) : game_(game), before_(look(game)) {}

  /// The rule that is broken since the last call; empty if none is. `pressed` is the cell on which
  /// the one event since then was a press, 0 after other events, and `said` what was heard of it.
  std::string broken(int pressed, const std::string& said) {
    const std::string before = std::exchange(before_, look(game_));
    const bool stating = before.find("\nEnd") != std::string::npos;
    std::string rule;
    if (pressed != 0 && !stating) rule = brokenByPress(pressed, before);
    if (pressed != 0 && pressed <= gridCells && roleOf(pressed) != CellRole::hole && rule.empty()) {
      const bool sets = before != before_ && (!stating || cornerOf(pressed) != 0);
      if (said.empty() || (sets && !said.starts_with(spoken(caption(pressed)))))
        rule = "every press is answered";
    }
    if (game_.search.SolveFound() && rule.empty()) rule = brokenInSolution();
    return before_.find('!') == std::string::npos ? rule : "cells look as they may";
  }

  /// What the player sees and can do: what is shown around the board and what is disabled, whether
  /// the puzzle is over, the targets if any are set; then the grid, each cell as the mark of its
  /// look and its caption, '.' for none.
  static std::string look(const Game& game) {
    const Form1& form = game.form;
    std::string all = form.caption();
    if (form.RightMess.Visible()) all += "; " + form.RightMess.caption();
    if (form.CompMess.Visible()) all += "; " + form.CompMess.caption();
    for (const auto* it : {&form.NewPuz, &form.Solveit}) {
      if (it->Visible()) all += it->enabled() ? "; " + it->caption() : "; (" + it->caption() + ")";
    }
    all += "\n" + form.SolveMx.caption() + ":";
    std::string targets;
    for (int k = 1; k <= 4; ++k) {
      const Cell& outer = form.board.GridDisp[OuterCornerCells[k]];
      all += outer.Visible() ? std::string(" ") + mark(outer) + outer.caption() : " ";
      all += (form.board.NPict[k].Visible() ? ":)" : "");
      targets += " " + std::to_string(game.state.*cornerTargets[k]);
    }
    for (const auto* it : form.Gamex.items) all += it->enabled() ? "" : "; no " + it->caption();
    if (game.state.BoardLocked) all += "; over";
    if (targets != " -1 -1 -1 -1") all += "; targets" + targets;
    for (int index = 1; index <= gridCells; ++index) {
      const Cell& cell = form.board.GridDisp[index];
      if (columnOf(index) == 1) all += '\n';
      all += mark(cell) + (cell.caption().empty() ? "." : cell.caption());
    }
    return all;
  }

 private:
  const Game& game_;
  std::string before_;  ///< the look

  /// Plain, a hole, or green, red or black with white text; the second mark is an enabled cell's.
  static char mark(const Cell& cell) {
    static const std::map<std::pair<unsigned, unsigned>, std::string_view> marks{
        {{0x80000001, 0x80000000}, " _"},
        {{0, 0x80000000}, "#%"},
        {{0x008000, 0xffffff}, "gG"},
        {{0x000080, 0xffffff}, "rR"},
        {{0, 0xffffff}, "bB"}};
    const auto found = marks.find({cell.backcolor().value, cell.forecolor().value});
    return found == marks.end() || !cell.Visible() ? '!' : found->second[cell.enabled() ? 1 : 0];
  }
  const Cell& cell(int index) const { return game_.form.board.GridDisp[index]; }
  const std::string& caption(int index) const { return cell(index).caption(); }

  /// The result of the line that has the texts `at` 0 to 4.
  static std::string resultOf(const auto& at) {
    const int value =
        EvalLine(readNumber(at(0)), readNumber(at(2)), readNumber(at(4)), at(1), at(3));
    return value >= 1 && value <= 9 ? std::to_string(value) : "?";
  }

  std::string brokenInSolution() const {
    const PuzzleState& state = game_.state;
    for (int line = 0; line < 8; ++line) {  // the rows, then the columns
      const int k = line % 4 + 1;
      const auto at = [&](int place) {
        return place % 2 == 1 ? state.SolOperators[2 * line + 1 + place / 2]
               : line < 4     ? state.SolNumbers[4 * k - 3 + place / 2]
                              : state.SolNumbers[k + 2 * place];
      };
      const int target = state.*cornerTargets[k];
      if (at(6) != " " + resultOf(at) ||
          (target > 0 && caption(CornerCells[k]) != std::to_string(target)))
        return "every solution is true and has the corners asked for";
    }
    return {};
  }

  std::string brokenByPress(int pressed, const std::string& before) const {
    if (before.find("; over") != std::string::npos || !cell(pressed).enabled())
      return before_ == before ? "" : "a press changes only what takes it";
    const auto result = [&](int first, int step) {
      return resultOf([&](int place) { return caption(first + place * step); });
    };
    std::string shown;
    std::string values;
    for (const int line : {1, 3, 5}) {
      shown += caption(7 * line) + caption(42 + line);
      values += result(7 * line - 6, 1) + result(line, 7);
    }
    const bool inColumn7 = pressed == 14 || pressed == 28;
    const bool unknown = pressed < 43 && shown.find('?') != std::string::npos;
    shown += caption(49);
    values += inColumn7 ? result(7, 7) : unknown ? "?" : result(43, 1);
    return shown == values ? "" : "lines show " + values + ", cell 49 that of the operator pressed";
  }
};

}  // namespace tessoro::test
