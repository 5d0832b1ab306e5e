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

  /// Says why a press on the disabled cell 0..53 did nothing.
  void explainRefusal(int cell);
  /// Says why a press on the disabled button "Solve Puzzle" did nothing.
  void explainDisabledSolveit();
  /// Says what belongs in cell 1..49, or on a button with 0, after a character that does not.
  void explainTyping(int cell);
  /// Says that an arrow key has reached the edge of the board.
  void explainEdge();
  /// Says that there is no way to an empty cell, since there is none or the puzzle is over.
  void explainNoneEmpty();

  /// Tells row 1..7, as the player has asked to hear.
  void tellRow(int row);
  /// The same with column 1..7.
  void tellColumn(int column);
  /// The same with the four corners.
  void tellCorners();
  /// Tells the last sentence again, or the first puzzle where there has been none.
  void repeat();

  /// What there is to tell of the puzzle of the start; nothing if none was found.
  std::string firstPuzzle() const;
  /// The outcome of "New Puzzle"; nothing if none was found.
  std::string newPuzzle() const;
  /// The outcome of "Solve Puzzle"; nothing if there was none but a message box.
  std::string solvedPuzzle() const;
  /// The outcome of "Start a Solution".
  std::string randomStart() const;
  /// The outcome of "Show Solution".
  static std::string solutionShown();
  /// The outcome of entering or leaving the mode in which puzzles are set.
  std::string modeSwitched() const;

 private:
  enum class Standing { open, right, wrong };

  /// What the board shows, as far as it is heard.
  struct Heard {
    std::array<std::string, gridCells + 1> results;  ///< in words, of the cells that are results
    std::array<Standing, 5> corners{};               ///< of the corners 1..4
    bool begun = false;                              ///< the results have been worked out
  };

  /// What is heard of the board as it stands.
  Heard heard() const;
  /// What is heard of the board that was not so before, each part after a comma.
  std::string changesSince(const Heard& before) const;
  /// Has the sentence announced, if there is one and no search is under way.
  void say(const std::string& sentence);

  const Form1& form_;
  const PuzzleState& state_;
  const SolutionSearch& search_;
  platform::Desktop& desktop_;
  std::string last_;  ///< the last sentence announced
};

}  // namespace tessoro
