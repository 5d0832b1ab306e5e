#include "app/narrator.h"

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
std::string changedValue(const std::string& result) {
  return result == noValue             ? " has no value"
         : isDigit(readNumber(result)) ? " is " + result
                                       : " is full, " + result;
}

}  // namespace

void Narrator::narrate(const std::function<void()>& handler, Sentence outcome) {
  // Events come in while a search yields. Those that would change the puzzle or the board are
  // ignored then: the search is about to replace both.
  if (search_.underWay()) return;
  const auto announceOutcome = [&] {
    if (outcome) say(std::exchange(outcome, nullptr)());
  };
  // Boxes that come up while a search yields are not the handler's.
  desktop_.boxOpens = [&] {
    if (!search_.underWay()) announceOutcome();
  };
  handler();
  desktop_.boxOpens = nullptr;
  announceOutcome();
}

void Narrator::say(const std::string& sentence) {
  // A search replaces what there is to be told of.
  if (sentence.empty() || search_.underWay()) return;
  last_ = sentence;
  desktop_.announce(sentence);
}

Narrator::Sentence Narrator::outcomeOfPress(int cell) const {
  return [this, cell, before = heard(), wasOver = state_.BoardLocked] {
    const std::string shown = spoken(form_.board.GridDisp[cell].caption());
    if (state_.SolveMode) return cornerOf(cell) != 0 ? shown : std::string(onlyCorners);
    return wasOver ? "The puzzle is over" : shown + changesSince(before);
  };
}

Narrator::Heard Narrator::heard() const {
  const Board& board = form_.board;
  Heard now;
  now.begun = !board.GridDisp[plainResult].caption().empty();
  for (int cell = 1; cell <= gridCells; ++cell) {
    if (!lineOf(cell).empty()) now.results[cell] = spokenCell(board, cell);
  }
  for (int k = 1; k <= 4; ++k) {
    now.corners[k] = board.NPict[k].Visible()                        ? Standing::right
                     : board.GridDisp[OuterCornerCells[k]].Visible() ? Standing::wrong
                                                                     : Standing::open;
  }
  return now;
}

std::string Narrator::changesSince(const Heard& before) const {
  const Heard now = heard();
  std::string words;
  if (!before.begun && now.begun) {
    words = ", no line has a value yet, corners to get right:";
    for (int k = 1; k <= 4; ++k) {
      if (now.corners[k] == Standing::wrong) words += " " + cornerName(k) + ",";
    }
    words.pop_back();
    return words;
  }
  const auto target = [&](int k) {
    return ", target " + form_.board.GridDisp[OuterCornerCells[k]].caption();
  };
  for (int cell = 1; cell <= gridCells; ++cell) {
    if (now.results[cell] == before.results[cell]) continue;
    words += ", " + lineOf(cell) + changedValue(now.results[cell]);
    const int k = cornerOf(cell);
    const bool stillWrong =
        now.corners[k] == Standing::wrong && before.corners[k] == Standing::wrong;
    if (stillWrong && now.results[cell] != noValue) words += target(k);
  }
  for (int k = 1; k <= 4; ++k) {
    if (now.corners[k] == before.corners[k]) continue;
    words += ", " + cornerName(k) +
             (now.corners[k] == Standing::right ? " is correct" : " is wrong" + target(k));
  }
  return words;
}

void Narrator::explainRefusal(int cell) {
  const CellRole role = roleOf(cell);
  say(std::string(state_.SolveMode                ? onlyCorners
                  : role == CellRole::number      ? "This number is given"
                  : role == CellRole::equals      ? "Nothing is set here"
                  : role == CellRole::outerCorner ? "This is the number to reach"
                                                  : "Results are worked out, not set"));
}

void Narrator::explainDisabledSolveit() {
  // Any cell enables the button, and a corner would not be the same after it.
  say(state_.BoardLocked ? "Solved already: change a corner, or press any number to solve it again"
                         : "Set the corners first");
}

void Narrator::explainTyping(int cell) {
  const CellRole role = roleOf(cell);
  say(cell == 0                        ? "Nothing is set here"
      : role == CellRole::operatorSign ? "Plus, minus or times is set here"
                                       : "A digit from 1 to 9 is set here");
}

void Narrator::explainEdge() {
  say("Edge of the board");
}

void Narrator::explainNoneEmpty() {
  say(state_.BoardLocked && !state_.SolveMode ? "The puzzle is over" : "No other cell is empty");
}

void Narrator::tellRow(int row) {
  say(spokenRow(form_.board, row));
}

void Narrator::tellColumn(int column) {
  say(spokenColumn(form_.board, column));
}

void Narrator::tellCorners() {
  say(spokenCorners(form_.board));
}

void Narrator::repeat() {
  say(last_.empty() ? firstPuzzle() : last_);
}

std::string Narrator::firstPuzzle() const {
  return search_.SolveFound() ? spokenCorners(form_.board) : "";
}

std::string Narrator::newPuzzle() const {
  if (!search_.SolveFound()) return {};  // as the message box has told
  return "Puzzle " + numberText(state_.PuzzleNo) + ". " + spokenCorners(form_.board);
}

std::string Narrator::solvedPuzzle() const {
  const bool solved = search_.SolveFound() && state_.BoardLocked;
  return solved ? "Solved as puzzle " + numberText(state_.PuzzleNo) : "";
}

std::string Narrator::solutionShown() {
  return "The solution is shown, and the puzzle is over";
}

std::string Narrator::randomStart() const {
  return "Random start. " + spokenCorners(form_.board);
}

std::string Narrator::modeSwitched() const {
  return state_.SolveMode ? "Set each corner to its number, then press Solve Puzzle"
                          : "Back from setting puzzles. Press New Puzzle to play on";
}

}  // namespace tessoro
