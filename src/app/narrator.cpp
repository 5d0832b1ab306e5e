#include "app/narrator.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "app/spoken_board.h"
#include "board/captions.h"

namespace tessoro {
namespace {

/// A result that is empty until the first move has every line worked out; corners never are.
constexpr int plainResult = 21;

constexpr std::string_view onlyCorners = "Only corners are set in this mode";

/// The line that ends in a result cell, in words; none for other cells.
std::string lineOf(int cell) {
  switch (roleOf(cell)) {
    case CellRole::rowResult:
      return "row " + numberText(rowOf(cell));
    case CellRole::columnResult:
      return "column " + numberText(columnOf(cell));
    case CellRole::grandResult:
      return "total";
    default:
      return {};
  }
}

/// What a result cell shows, as the end of a clause.
std::string valueOf(const std::string& caption) {
  return caption == noNumber ? " has no value" : " is " + caption;
}

}  // namespace

void Narrator::narrate(const std::function<void()>& handler, Sentence outcome) {
  const auto announceOutcome = [&] {
    const std::string sentence = outcome ? std::exchange(outcome, nullptr)() : "";
    if (!sentence.empty()) desktop_.announce(sentence);
  };
  // Boxes that come up while a search yields are not the handler's.
  desktop_.boxOpens = [&] {
    if (!search_.underWay()) announceOutcome();
  };
  handler();
  desktop_.boxOpens = nullptr;
  announceOutcome();
}

Narrator::Sentence Narrator::outcomeOfPress(int cell) const {
  return [this, cell, before = heard(), wasOver = state_.BoardLocked] {
    const std::string shown = spoken(form_.board.GridDisp[cell].caption());
    if (state_.SolveMode) return cornerOf(cell) != 0 ? shown : std::string(onlyCorners);
    return wasOver ? "The puzzle is over" : shown + changesSince(before);
  };
}

Narrator::Heard Narrator::heard() const {
  Heard now;
  for (int cell = 1; cell <= gridCells; ++cell) {
    now.captions[cell] = form_.board.GridDisp[cell].caption();
  }
  for (int k = 1; k <= 4; ++k) now.right[k] = form_.board.NPict[k].Visible();
  return now;
}

std::string Narrator::changesSince(const Heard& before) const {
  const Heard now = heard();
  std::string words;
  if (before.captions[plainResult].empty()) {
    const auto wrong = std::count(now.right.begin() + 1, now.right.end(), false);
    return ", no line has a value yet, corners to get right: " +
           numberText(static_cast<int>(wrong));
  }
  for (int cell = 1; cell <= gridCells; ++cell) {
    const std::string line = lineOf(cell);
    if (line.empty() || now.captions[cell] == before.captions[cell]) continue;
    words += ", " + line + valueOf(now.captions[cell]);
  }
  for (int k = 1; k <= 4; ++k) {
    if (now.right[k] == before.right[k]) continue;
    words += ", " + cornerName(k) + (now.right[k] ? " is correct" : " is wrong");
  }
  return words;
}

void Narrator::explainRefusal(int cell) const {
  const bool given = roleOf(cell) == CellRole::number;
  desktop_.announce(state_.SolveMode ? onlyCorners
                    : given          ? "This number is given"
                                     : "Only numbers and operators are set");
}

std::string Narrator::corners() const {
  std::string words = "Corners:";
  for (int k = 1; k <= 4; ++k) {
    words += (k == 1 ? " " : ", ") + cornerName(k) + " " +
             form_.board.GridDisp[OuterCornerCells[k]].caption();
  }
  return words;
}

std::string Narrator::newPuzzle() const {
  if (!search_.SolveFound()) return {};  // as the message box has told
  return "Puzzle " + numberText(state_.PuzzleNo) + ". " + corners();
}

std::string Narrator::solvedPuzzle() const {
  const bool solved = search_.SolveFound() && state_.BoardLocked;
  return solved ? "Solved as puzzle " + numberText(state_.PuzzleNo) : "";
}

std::string Narrator::solutionShown() {
  return "The solution is shown, and the puzzle is over";
}

std::string Narrator::randomStart() const {
  std::string words = "Random start";
  for (int k = 1; k <= 4; ++k) {
    if (form_.board.NPict[k].Visible()) words += ", " + cornerName(k) + " is correct";
  }
  return words;
}

std::string Narrator::modeSwitched() const {
  return state_.SolveMode ? "Press each corner to its number, then press Solve Puzzle"
                          : "Back from setting puzzles. Press New Puzzle to play on";
}

}  // namespace tessoro
