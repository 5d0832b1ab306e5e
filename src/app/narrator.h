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
  /// box comes up. The sentence is put together only then; an empty one is not announced. Does
  /// nothing while a search is under way.
  void narrate(const std::function<void()>& handler, Sentence outcome);

  /// What a press on the cell will have changed since now, or why it has not.
  Sentence outcomeOfPress(int cell) const;

  // Why a key or a press did nothing: one on a disabled cell; one on the disabled button "Solve
  // Puzzle"; a character that does not belong in cell 1..49, or on the button with 0; an arrow key
  // at the edge of the board; the way to an empty cell where there is none.
  void explainRefusal(int cell);
  void explainDisabledSolveit();
  void explainTyping(int cell);
  void explainEdge();
  void explainNoneEmpty();

  // What the player has asked for: a row or column 1..7, the corners, the last sentence again.
  void tellRow(int row);
  void tellColumn(int column);
  void tellCorners();
  void repeat();

  // What there is to tell of the first puzzle, and the outcomes of the commands.
  std::string firstPuzzle() const;
  std::string newPuzzle() const;
  std::string solvedPuzzle() const;
  std::string randomStart() const;
  static std::string solutionShown();
  std::string modeSwitched() const;

 private:
  enum class Standing { open, right, wrong };

  /// What the board shows, as far as it is heard.
  struct Heard {
    std::array<std::string, gridCells + 1> results;  ///< in words, of the cells that are results
    std::array<Standing, 5> corners{};               ///< of the corners 1..4
    bool begun = false;                              ///< the results have been worked out
  };

  Heard heard() const;
  std::string changesSince(const Heard& before) const;
  void say(const std::string& sentence);

  const Form1& form_;
  const PuzzleState& state_;
  const SolutionSearch& search_;
  platform::Desktop& desktop_;
  std::string last_;  ///< the last sentence announced
};

}  // namespace tessoro
