#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "app/game.h"
#include "game/invariants.h"

namespace tessoro::test {

struct ProgramEnded {};
using Log = std::vector<std::string>;

/// A desktop without windows that keeps what it is asked for in a log. The test answers its boxes
/// and runs handlers while it yields.
struct FakeDesktop final : platform::Desktop, platform::Printer, platform::HelpViewer {
  void announce(std::string_view sentence) override { said.emplace_back(sentence); }
  Answer messageBox(std::string_view text, Buttons buttons) override {
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
  const std::string corners = "Corners: top left 7, top right 1, bottom left 3, bottom right 8";
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
