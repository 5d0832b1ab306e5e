#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/game.h"
#include "app/spoken_board.h"
#include "board/captions.h"
#include "rules/eval_line.h"

namespace tessoro::test {

/// What must hold of the game after every event, whatever the player does. It watches one game.
class Invariants {
 public:
  explicit Invariants(const Game& game) : game_(game), before_(game) {}

  /// The rule that is broken since the last call; empty if none is. `pressed` is the cell on which
  /// the one event since then was a press, 0 after other events, and `said` what was heard of it.
  std::string broken(int pressed, const std::string& said) {
    const Moment before = std::exchange(before_, Moment(game_));
    std::string rule;
    if (pressed != 0 && !before.stating) rule = brokenByPress(pressed, before);
    if (pressed != 0 && rule.empty()) rule = brokenBySaying(pressed, said, before);
    if (game_.search.SolveFound() && rule.empty()) rule = brokenInSolution();
    return before_.look.find('!') == std::string::npos ? rule : "cells look as they may";
  }

  /// What the player sees and can do: the title, the label, the button (in parentheses while
  /// disabled); the command of set-a-puzzle mode, what stands outside each corner, the disabled
  /// commands, whether the puzzle is over, the targets if any are set; then the grid, each cell as
  /// the mark of its look and its caption, '.' for none.
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
  struct Moment {
    explicit Moment(const Game& game)
        : look(Invariants::look(game)),
          stating(game.state.SolveMode),
          over(game.state.BoardLocked),
          standings(standingsOf(game.form.board)) {}
    std::string look;
    bool stating;
    bool over;
    std::vector<std::string> standings;
  };
  const Game& game_;
  Moment before_;

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

  /// The first pair of operators with which the line of these numbers has a digit, or the one asked
  /// for, as its value.
  static std::string firstPair(const std::string& a, const std::string& b, const std::string& c,
                               int target) {
    for (const std::string pair : {"++", "+-", "--", "-+", "+*", "*+", "-*", "*-", "**"}) {
      const int value =
          EvalLine(readNumber(a), readNumber(b), readNumber(c), pair.substr(0, 1), pair.substr(1));
      if (target > 0 ? value == target : isDigit(value)) return pair;
    }
    return "";
  }

  std::string brokenInSolution() const {
    const PuzzleState& state = game_.state;
    for (int k = 1; k <= 4; ++k) {
      const int target = state.*cornerTargets[k];
      const auto holds = [&](int first, int step, int op) {
        const auto at = [&](int place) {
          return place % 2 == 0 ? state.SolNumbers[first + place / 2 * step]
                                : state.SolOperators[op + place / 2];
        };
        return at(6) == " " + resultOf(at);
      };
      const auto isFirst = [&](int first, int step, int op) {
        const auto number = [&](int place) { return state.SolNumbers[first + place * step]; };
        const std::string pair = state.SolOperators[op] + state.SolOperators[op + 1];
        // The corner may have been asked for; what is asked for now may be another since.
        const int corner = k == 1 ? readNumber(number(3)) : 0;
        return pair == firstPair(number(0), number(1), number(2), 0) ||
               (k == 1 && pair == firstPair(number(0), number(1), number(2), corner));
      };
      // The last ones are chosen together.
      if (k < 4 && !(isFirst(4 * k - 3, 1, 2 * k - 1) && isFirst(k, 4, 2 * k + 7))) {
        return "every line has the first pair of operators that fits";
      }
      if (!holds(4 * k - 3, 1, 2 * k - 1) || !holds(k, 4, 2 * k + 7) ||
          (target > 0 && caption(CornerCells[k]) != std::to_string(target))) {
        return "every solution is true and has the corners asked for";
      }
    }
    return {};
  }

  std::string brokenByPress(int pressed, const Moment& before) const {
    if (before.over || !cell(pressed).enabled()) {
      return before_.look == before.look ? "" : "a press changes only what takes it";
    }
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

  /// The value of each line and how each corner stands, as it is heard when it changes; none before
  /// the first move.
  static std::vector<std::string> standingsOf(const Board& board) {
    std::vector<std::string> all;
    if (board.GridDisp[21].caption().empty()) return all;
    for (const int cell : {7, 21, 35, 43, 45, 47, 49}) {
      const std::string& value = board.GridDisp[cell].caption();
      all.push_back(cell == 49  ? "total"
                    : cell < 43 ? "row " + std::to_string(cell / 7)
                                : "column " + std::to_string(cell - 42));
      all.back() += value == "?" ? " has no value" : " is " + value;
    }
    for (int k = 1; k <= 4; ++k) {
      all.push_back(cornerName(k) +
                    (board.NPict[k].Visible()
                         ? " is correct"
                         : " is wrong, target " + board.GridDisp[OuterCornerCells[k]].caption()));
    }
    return all;
  }

  std::string brokenBySaying(int pressed, std::string said, const Moment& before) const {
    if (pressed > gridCells || roleOf(pressed) == CellRole::hole) return "";
    if (said.empty()) return "every press is answered";
    const bool sets = before.look != before_.look && (!before.stating || cornerOf(pressed) != 0);
    if (sets && !said.starts_with(spoken(caption(pressed)))) return "what the cell shows is told";
    for (std::size_t i = 0; sets && !before.stating && i < before.standings.size(); ++i) {
      std::string now = before_.standings[i];
      if (now == before.standings[i] || said.find(", " + now) != std::string::npos) continue;
      now.resize(std::min(now.find(" has"), now.size()));
      if (said.find(", " + now + " is full, no digit") == std::string::npos)
        return "told is " + now;
    }
    return "";
  }
};

}  // namespace tessoro::test
