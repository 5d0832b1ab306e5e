#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "app/game.h"
#include "board/captions.h"
#include "rules/eval_line.h"

namespace tessoro::test {

/// What must hold of the game after every event, whatever the player does. It watches one game.
class Invariants {
 public:
  explicit Invariants(const Game& game) : game_(game), before_(look(game)) {}

  /// The rule that is broken since the last call; empty if none is. `pressed` is the cell on which
  /// the one event since then was a press, 0 after other events.
  std::string broken(int pressed) {
    const bool inPlay = before_.find("End computer solution mode") == std::string::npos;
    std::string rule = pressed != 0 && inPlay ? brokenByPress(pressed) : "";
    if (game_.search.SolveFound() && rule.empty()) rule = brokenInSolution();
    before_ = look(game_);
    return before_.find('!') == std::string::npos ? rule : "cells look as they may";
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
  const Game& game_;
  std::string before_;

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
    for (int k = 1; k <= 4; ++k) {
      const int target = state.*cornerTargets[k];
      const auto holds = [&](int first, int step, int op) {
        const auto at = [&](int place) {
          return place % 2 == 0 ? state.SolNumbers[first + place / 2 * step]
                                : state.SolOperators[op + place / 2];
        };
        return at(6) == " " + resultOf(at);
      };
      if (!holds(4 * k - 3, 1, 2 * k - 1) || !holds(k, 4, 2 * k + 7) ||
          (target > 0 && caption(CornerCells[k]) != std::to_string(target))) {
        return "every solution is true and has the corners asked for";
      }
    }
    return {};
  }

  std::string brokenByPress(int pressed) const {
    if (before_.find("; over") != std::string::npos || !cell(pressed).enabled()) {
      return look(game_) == before_ ? "" : "a press changes only what takes it";
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
};

struct ProgramEnded {};
using Log = std::vector<std::string>;

/// A desktop without windows that keeps what it is asked for in a log. The test answers its boxes
/// and runs handlers while it yields.
struct FakeDesktop final : platform::Desktop, platform::Printer, platform::HelpViewer {
  void announce(std::string_view sentence) override { said.emplace_back(sentence); }
  Answer showMessageBox(std::string_view text, Buttons buttons) override {
    log.push_back(std::string(text) + (buttons == Buttons::ok ? " [OK]" : " [Yes] [No]"));
    said.push_back(log.back());
    return buttons == Buttons::ok ? Answer::ok : answer;
  }
  void yield() override { onYield(); }
  double secondsSinceMidnight() override { return clock += tick; }
  void showModal(platform::Form& form) override { log.push_back(form.caption()); }
  platform::Printer& printer() override { return *this; }
  void setFontName(std::string_view name) override { log.emplace_back(name); }
  void setFontSize(double points) override { log.push_back(std::to_string(points)); }
  void printLine(std::string_view text) override { log.emplace_back(text); }
  void endDocument() override { log.emplace_back("end"); }
  platform::HelpViewer& helpViewer() override { return *this; }
  bool WinHelpA(const platform::Form& owner, std::string_view file, unsigned command,
                unsigned data) override {
    log.insert(log.end(), {owner.caption(), std::string(file), std::to_string(command + data)});
    return false;
  }
  [[noreturn]] void endProgram() override { throw ProgramEnded{}; }

  Log log;
  Log said;  ///< what a screen reader was to speak, and the boxes
  Answer answer = Answer::no;
  std::function<void()> onYield = [] {};
  double clock = 30000;
  double tick = 1e-6;  ///< how far the clock goes on between two readings
};

/// The game, started on a puzzle whose solution is known. It draws the digits of `script`, and when
/// they are used up, real ones.
struct GameTest : testing::Test, Digits {
  FakeDesktop desktop;
  std::string script;
  ReseededDigits real{desktop};
  Game game{desktop, *this};
  PuzzleState& state = game.state;
  Form1& form = game.form;
  const std::string known = "771534952";
  /// What `look` gives between the first and the last row: an empty grid, and the known solution.
  const std::string emptyRows =
      "\n_.#._.#._.#._.\n_._._._._. = .\n_.#._.#._.#._.\n_._._._._. = .\n =#. =#. =#. =\n";
  const std::string knownRows =
      "\n_+#._+#._+#._*\n_5_+_3_-_4 = 4\n_-#._-#._+#._*\n_9_-_5_-_2 = 2\n =#. =#. =#. =\n";

  int draw() override {
    if (script.empty()) return real.draw();
    const int digit = script.front() - '0';
    script.erase(0, 1);
    return digit;
  }
  void SetUp() override {
    script = known;
    game.startUp.Form_Load();
  }
  std::string look() const { return Invariants::look(game); }
  Cell& cell(int index) { return form.board.GridDisp[index]; }
  const std::string& caption(int index) { return cell(index).caption(); }
  void press(int index, platform::MouseButton button = platform::MouseButton::left) {
    cell(index).press({.button = button});
  }
  static void clickButton(Cell& button) {
    button.press({});
    button.release(platform::MouseButton::left, true);
  }
  void turnTo(int index, const std::string& text) {
    for (int presses = 0; caption(index) != text && presses < 10; ++presses) press(index);
  }
};

}  // namespace tessoro::test
