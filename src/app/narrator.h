#pragma once

#include <array>
#include <functional>
#include <string>

#include "app/form1.h"
#include "board/puzzle_state.h"
#include "platform/desktop.h"
#include "solver/solution_search.h"

namespace tessoro {

/// Tells players who do not see the board what each press and command has changed: one sentence
/// each, as short as can be, since they hear it a hundred times in a puzzle.
///
/// The game narrates: it runs a handler and puts its outcome into a sentence, or explains why a
/// press did nothing. The desktop announces the sentence: it has it spoken when its turn comes.
/// What else a screen reader reads, such as the names of cells, it takes from the controls by
/// itself.
class Narrator {
 public:
  using Sentence = std::function<std::string()>;

  Narrator(const Form1& form, const PuzzleState& state, const SolutionSearch& search,
           platform::Desktop& desktop)
      : form_(form), state_(state), search_(search), desktop_(desktop) {}

  /// Runs the handler of an event, and announces its outcome at its end, or earlier when a message
  /// box comes up. The sentence is put together only then; an empty one is not announced.
  void narrate(const std::function<void()>& handler, Sentence outcome);

  /// What a press on the cell will have changed since now, or why it has not.
  Sentence outcomeOfPress(int cell) const;
  /// Announces why a press on the disabled cell did nothing.
  void explainRefusal(int cell) const;
  /// Announces why a press on the disabled button "Solve Puzzle" did nothing.
  void explainDisabledSolveit() const { desktop_.announce("Press a corner first"); }

  // What there is to tell of the first puzzle, and the outcomes of the commands.
  std::string firstPuzzle() const { return search_.SolveFound() ? corners() : ""; }
  std::string newPuzzle() const;
  std::string solvedPuzzle() const;
  std::string randomStart() const;
  static std::string solutionShown();
  std::string modeSwitched() const;

 private:
  /// What the board shows, as far as it is heard.
  struct Heard {
    std::array<std::string, gridCells + 1> captions;  ///< of cells 1..49
    std::array<bool, 5> right{};                      ///< whether corners 1..4 are
  };

  Heard heard() const;
  std::string corners() const;
  std::string changesSince(const Heard& before) const;

  const Form1& form_;
  const PuzzleState& state_;
  const SolutionSearch& search_;
  platform::Desktop& desktop_;
};

}  // namespace tessoro
