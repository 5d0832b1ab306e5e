#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "app/game.h"
#include "game/invariants.h"

namespace tessoro::test {

using Log = std::vector<std::string>;

struct ProgramEnded {};

/// A desktop without windows that records what the game asks of it.
struct FakeDesktop final : platform::Desktop, platform::Printer, platform::HelpViewer {
  void announce(std::string_view sentence) override { said.emplace_back(sentence); }
  Answer messageBox(std::string_view text, Buttons buttons) override {
    said.push_back(std::string(text) + (buttons == Buttons::ok ? " [OK]" : " [Yes] [No]"));
    return buttons == Buttons::ok ? Answer::ok : answer;
  }
  void yield() override { onYield(); }
  double secondsSinceMidnight() override { return clock += tick; }
  void showModal(platform::Form& /*form*/) override {}
  platform::Printer& printer() override { return *this; }
  void setFontName(std::string_view name) override { printFont += name; }
  void setFontSize(double points) override { printFont += " " + std::to_string(points); }
  void printLine(std::string_view text) override { printed += std::string(text) + "\n"; }
  void endDocument() override { ++documents; }
  platform::HelpViewer& helpViewer() override { return *this; }
  bool WinHelpA(const platform::Form&, std::string_view, unsigned, unsigned) override {
    return true;
  }
  [[noreturn]] void endProgram() override { throw ProgramEnded{}; }

  Log said;  ///< what a screen reader speaks: sentences, and boxes as "You got it ! [OK]"
  std::string printed, printFont;
  int documents = 0;
  Answer answer = Answer::no;             ///< to a question
  std::function<void()> onYield = [] {};  ///< called while a search yields
  double clock = 30000, tick = 1e-6;  ///< the time, and how far each reading advances it, seconds
};

/// The game, started on a puzzle whose solution is known.
struct GameTest : testing::Test, Digits {
  static constexpr const char* solution =
      "7 - 7 + 1 = 1\n"
      "+ # + # + # *\n"
      "5 + 3 - 4 = 4\n"
      "- # - # + # *\n"
      "9 - 5 - 2 = 2\n"
      "= # = # = # =\n"
      "3 * 5 - 7 = 8\n";
  /// The random digits that make this solution, and those of an attempt that fails.
  static constexpr const char *solutionDigits = "771534952", *failingDigits = "112112112";

  FakeDesktop desktop;
  std::string nextDigits = solutionDigits;  ///< the next random digits; then real ones
  ReseededDigits randomDigits{desktop};
  Game game{desktop, *this};
  Form1& form = game.form;
  int focused = 0;  ///< the cell that last got the focus

  GameTest() {
    for (int i = 1; i <= gridCells; ++i) cell(i).focusWanted = [this, i] { focused = i; };
    game.startUp.Form_Load();
  }
  int draw() override {
    if (nextDigits.empty()) return randomDigits.draw();
    const int digit = nextDigits.front() - '0';
    nextDigits.erase(0, 1);
    return digit;
  }
  void failAttempts(int attempts) {
    for (nextDigits.clear(); attempts > 0; --attempts) nextDigits += failingDigits;
  }

  Cell& cell(int index) { return form.board.GridDisp[index]; }
  const std::string& caption(int index) { return cell(index).caption(); }
  void press(int index, platform::MouseButton button = platform::MouseButton::left) {
    cell(index).press({.button = button});
  }
  static void click(Cell& button) {
    button.press({});
    button.release(platform::MouseButton::left, true);
  }
  /// Presses a cell until it shows the text.
  void turnTo(int index, const std::string& text) {
    for (int presses = 0; caption(index) != text && presses < 10; ++presses) press(index);
  }
  /// Turns the cells, from `first` on, to the drawn texts; "." leaves a cell as it is.
  void turn(int first, const std::string& drawn, int except = 0) {
    std::istringstream texts(drawn);
    for (std::string text; texts >> text; ++first) {
      if (text != "." && first != except && cell(first).enabled()) turnTo(first, text);
    }
  }
  void solveExcept(int left) { turn(1, solution, left); }
  /// Chooses the menu item with this caption.
  void choose(const std::string& text) {
    for (const auto* item : form.Gamex.items) {
      if (item->caption() == text) return item->choose();
    }
    FAIL() << "The menu has no item \"" << text << '"';
  }
  /// Types a character on the cell, a capital with Shift. Returns whether it has a meaning there.
  static bool type(const Cell& on, char character) {
    const bool shift = character >= 'A' && character <= 'Z';
    return on.typed && on.typed(static_cast<char>(shift ? character + 32 : character), shift);
  }
  bool type(int index, char character) { return type(cell(index), character); }

  std::string grid() const { return drawnGrid(form.board); }
  std::string corners() const { return drawnCorners(form.board); }
  std::string lastSaid() const { return desktop.said.empty() ? "" : desktop.said.back(); }
};

}  // namespace tessoro::test
