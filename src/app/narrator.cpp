#include "app/narrator.h"

#include <utility>

#include "app/spoken_board.h"
#include "board/captions.h"

namespace tessoro {
namespace {

/// Returns the name of the line that ends in a result cell; empty for other cells.
std::string lineName(int cell) {
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

/// Returns what follows the name of a line: " is 5", " has no value" or " is full, no digit".
std::string changedValue(const std::string& result) {
  return result == noValue             ? " has no value"
         : isDigit(readNumber(result)) ? " is " + result
                                       : " is full, " + result;
}

}  // namespace

void Narrator::say(const std::string& sentence) {
  if (sentence.empty()) return;
  last_ = sentence;
  desktop_.announce(sentence);
}

void Narrator::repeat() {
  say(last_.empty() ? firstPuzzle() : last_);
}

void Narrator::narrate(const std::function<void()>& handler, Outcome outcome) {
  outcome_ = std::move(outcome);
  handler();
  sayOutcome();
}

void Narrator::sayOutcome() {
  if (outcome_) say(std::exchange(outcome_, nullptr)());
}

Narrator::Outcome Narrator::outcomeOfPress(int cell) const {
  return [this, cell, before = snapshot(), settable = moves_.canSet(cell)] {
    if (!settable) return whyNotSet(cell);
    const std::string shown = spoken(form_.board.GridDisp[cell].caption());
    return state_.SolveMode ? shown : shown + changesSince(before);
  };
}

Narrator::Snapshot Narrator::snapshot() const {
  Snapshot now;
  for (int cell = 1; cell <= gridCells; ++cell) {
    if (!lineName(cell).empty()) now.results[cell] = spokenCell(form_.board, cell);
  }
  for (int k = 1; k <= 4; ++k) now.corners[k] = cornerStatus(form_.board, k);
  return now;
}

std::string Narrator::changesSince(const Snapshot& before) const {
  const Snapshot now = snapshot();
  const bool isFirstMove = before.corners[1].empty();
  if (isFirstMove) return ", no line has a value yet";
  std::string words;
  for (int cell = 1; cell <= gridCells; ++cell) {
    const std::string& result = now.results[cell];
    if (result == before.results[cell]) continue;
    words += ", " + lineName(cell) + changedValue(result);
    const int k = cornerOf(cell);
    // The new value of a corner that is still wrong helps only together with its target.
    if (result != noValue && now.corners[k] == before.corners[k]) words += now.corners[k];
  }
  for (int k = 1; k <= 4; ++k) {
    if (now.corners[k] == before.corners[k]) continue;
    const bool isCorrect = form_.board.NPict[k].Visible();
    words += ", " + cornerName(k) + (isCorrect ? " is correct" : " is wrong" + now.corners[k]);
  }
  return words;
}

std::string Narrator::whyNotSet(int cell) const {
  if (state_.SolveMode) {
    if (!state_.BoardLocked) return "Only the corners can be set in this mode";
    return form_.Solveit.enabled() ? "Press Solve Puzzle to solve it again" : whyNotSolved();
  }
  if (form_.board.GridDisp[cell].enabled()) return "The puzzle is over";
  switch (roleOf(cell)) {
    case CellRole::number:
      return "This number is given";
    case CellRole::equals:
      return "This cell cannot be set";
    case CellRole::outerCorner:
      return "This is the corner's target";
    default:
      return "Results are calculated";
  }
}

std::string Narrator::whyNotSolved() const {
  return state_.BoardLocked ? "Solved already: change a corner, or press a number or operator cell "
                              "to solve it again"
                            : "Set the corners first";
}

void Narrator::explainTyping(int cell) {
  say(cell == 0                                ? "This button cannot be set"
      : roleOf(cell) == CellRole::operatorSign ? "Type plus, minus or times here"
                                               : "Type a digit from 1 to 9 here");
}

void Narrator::explainNoEmptyCell() {
  say(state_.BoardLocked && !state_.SolveMode ? "The puzzle is over" : "No other cell is empty");
}

std::string Narrator::firstPuzzle() const {
  return search_.SolveFound() ? spokenCorners(form_.board) : "";
}

std::string Narrator::puzzleMade() const {
  if (!search_.SolveFound()) return {};
  return "Puzzle " + numberText(state_.PuzzleNo) + ". " + spokenCorners(form_.board);
}

std::string Narrator::puzzleSolved() const {
  const bool isSolved = search_.SolveFound() && state_.BoardLocked;
  return isSolved ? "Solved as puzzle " + numberText(state_.PuzzleNo) : "";
}

std::string Narrator::randomStart() const {
  return "Random start. " + spokenCorners(form_.board);
}

std::string Narrator::modeSwitched() const {
  return state_.SolveMode ? "Set each corner to its number, then press Solve Puzzle"
                          : "Puzzle setting is off. Press New Puzzle to play on";
}

}  // namespace tessoro
