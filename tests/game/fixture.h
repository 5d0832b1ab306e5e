#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "app/game.h"
#include "board/captions.h"

namespace tessoro::test {

struct ProgramEnded {};

/// Keeps what is asked of the printer and the help viewer.
struct Requests final : platform::Printer, platform::HelpViewer {
  void setFontName(std::string_view name) override { all.push_back("font " + std::string(name)); }
  void setFontSize(double points) override { all.push_back("size " + std::to_string(points)); }
  void printLine(std::string_view text) override { all.emplace_back(text); }
  void endDocument() override { all.emplace_back("end"); }
  bool WinHelpA(const platform::Form& owner, std::string_view file, unsigned command,
                unsigned data) override {
    all.push_back(owner.caption() + "/" + std::string(file) + "/" + std::to_string(command) + "/" +
                  std::to_string(data));
    return false;
  }
  std::vector<std::string> all;
};

/// A desktop without windows: the test answers its boxes and runs handlers while it yields.
struct FakeDesktop final : platform::Desktop {
  Answer showMessageBox(std::string_view text, Buttons buttons) override {
    messages.emplace_back(text);
    return buttons == Buttons::ok ? Answer::ok : answer;
  }
  void announce(std::string_view sentence) override { said.emplace_back(sentence); }
  void yield() override {
    ++yields;
    if (onYield) onYield();
  }
  double secondsSinceMidnight() override { return clock += tick; }
  void showModal(platform::Form& form) override {
    form.Visible = true;
    form.unload();
    EXPECT_FALSE(form.Visible());
  }
  platform::Printer& printer() override { return requests; }
  platform::HelpViewer& helpViewer() override { return requests; }
  [[noreturn]] void endProgram() override { throw ProgramEnded{}; }

  std::vector<std::string> messages;
  std::vector<std::string> said;
  Requests requests;
  Answer answer = Answer::no;
  std::function<void()> onYield;
  int yields = 0;
  double clock = 30000;
  double tick = 1e-6;  ///< how far the clock goes on between two readings
};

/// Digits that the test writes down; when they are used up, real ones.
struct ScriptedDigits final : Digits {
  explicit ScriptedDigits(platform::Desktop& desktop) : real_(desktop) {}
  int draw() override {
    if (script.empty()) return real_.draw();
    const int digit = script.front();
    script.pop_front();
    return digit;
  }

  std::deque<int> script;
  ReseededDigits real_;
};

struct GameTest : testing::Test {
  FakeDesktop desktop;
  ScriptedDigits digits{desktop};
  Game game{desktop, digits};
  PuzzleState& state = game.state;
  Form1& form = game.form;

  void SetUp() override { game.startUp.Form_Load(); }

  Cell& cell(int index) { return form.board.GridDisp[index]; }
  const std::string& caption(int index) { return cell(index).caption(); }
  void put(const std::vector<std::pair<int, std::string>>& captions) {
    for (const auto& [index, text] : captions) cell(index).caption = text;
  }
  void press(int index, platform::MouseButton button = platform::MouseButton::left) {
    cell(index).press({.button = button});
  }
  static void clickButton(Cell& button) {
    button.press({});
    button.release(platform::MouseButton::left, true);
  }
  std::string captionsOf(const std::vector<int>& cells) {
    std::string all;
    for (const int index : cells) all += caption(index).empty() ? "." : caption(index);
    return all;
  }
  /// Presses the cell until it shows the text.
  void turnTo(int index, const std::string& text) {
    for (int presses = 0; caption(index) != text && presses < 10; ++presses) press(index);
    ASSERT_EQ(caption(index), text);
  }
  /// Plays the stored solution but for one number, or less of it where that is enough for the four
  /// corners.
  void playSolution(int leaveOut = 0) {
    for (int k = 1; k <= 16; ++k) {
      if (cell(numberCells[k]).enabled() && numberCells[k] != leaveOut && !state.BoardLocked) {
        turnTo(numberCells[k], std::string(trimmed(state.SolNumbers[k])));
      }
      if (!state.BoardLocked) turnTo(operatorCells[k], state.SolOperators[k]);
    }
  }
};

}  // namespace tessoro::test
