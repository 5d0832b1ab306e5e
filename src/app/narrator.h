#pragma once

#include <array>
#include <functional>
#include <string>

#include "app/form1.h"
#include "board/puzzle_state.h"
#include "platform/desktop.h"
#include "play/moves.h"
#include "solver/solution_search.h"

namespace tessoro {

/// Spoken feedback on presses and commands, for players who do not see the board. They hear these
/// sentences a hundred times in a puzzle, so each is as short as possible.
class Narrator {
 public:
  /// Function that is called after an event and returns the sentence that says what it changed.
  using Outcome = std::function<std::string()>;

  Narrator(const Form1& form, const PuzzleState& state, const Moves& moves,
           const SolutionSearch& search, platform::Desktop& desktop)
      : form_(form), state_(state), moves_(moves), search_(search), desktop_(desktop) {}

  /// Speaks the sentence with a screen reader, unless it is empty.
  void say(const std::string& sentence);
  /// Repeats the last sentence, or describes the first puzzle if nothing has been said yet.
  void repeat();

  /// Runs an event's handler, then says the outcome.
  void narrate(const std::function<void()>& handler, Outcome outcome);
  /// Says the outcome unless it has been said. A handler that shows a box calls this first.
  void sayOutcome();

  /// Call before the press. The returned function, called after it, says what the press changed, or
  /// why it changed nothing.
  Outcome outcomeOfPress(int cell) const;

  /// Says why a press on the disabled cell 0..53 did nothing.
  void explainRefusal(int cell) { say(whyNotSet(cell)); }
  /// Says why a press on the disabled button "Solve Puzzle" did nothing.
  void explainDisabledSolveit() { say(whyNotSolved()); }
  /// Says what cell 1..49 accepts, or that a button (0) cannot be set.
  void explainTyping(int cell);
  /// Says why the key N finds no empty cell.
  void explainNoEmptyCell();

  // Outcomes of commands; empty if a message box has already told the player.
  std::string firstPuzzle() const;   ///< of the search at the start
  std::string puzzleMade() const;    ///< of "New Puzzle"
  std::string puzzleSolved() const;  ///< of "Solve Puzzle"
  std::string randomStart() const;   ///< of "Start a Solution"
  std::string modeSwitched() const;  ///< of entering or leaving set-a-puzzle mode

 private:
  /// Results and the status of corners in words, to find what a press changes.
  struct Snapshot {
    std::array<std::string, gridCells + 1> results;  ///< empty if not a result
    std::array<std::string, 5> corners;              ///< 1..4; empty until play has begun
  };

  Snapshot snapshot() const;
  /// Returns what has changed on the board since `before`, each change preceded by a comma.
  std::string changesSince(const Snapshot& before) const;
  std::string whyNotSet(int cell) const;
  std::string whyNotSolved() const;

  const Form1& form_;
  const PuzzleState& state_;
  const Moves& moves_;
  const SolutionSearch& search_;
  platform::Desktop& desktop_;
  Outcome outcome_;   ///< of the running handler, until it is said
  std::string last_;  ///< the last sentence said
};

}  // namespace tessoro
