#pragma once

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/desktop.h"
#include "platform/form.h"
#include "print/print_page.h"
#include "solver/digits.h"
#include "solver/solution_attempt.h"

namespace tessoro {

/// Search for a solution by random attempts. It makes new puzzles and solves the player's.
class SolutionSearch {
 public:
  SolutionSearch(PuzzleState& state, Board& board, Digits& digits, PrintPage& page,
                 platform::Desktop& desktop, platform::Form& form, Cell& Solveit)
      : state_(state),
        board_(board),
        page_(page),
        desktop_(desktop),
        form_(form),
        Solveit_(Solveit),
        attempt_(state, digits) {}

  /// Searches for a solution with the corners that the targets fix, processing pending events
  /// before each attempt. On success stores it as the current puzzle, updates title, corners and
  /// print page, hides the outer corner cells and disables `Solveit`. After 500 attempts shows a
  /// message, clears the board between the corners and restores the puzzle number. After a success,
  /// the caller clears or fills the board between the corners.
  void FindSolution();

  /// Returns whether the last search found a solution; true while one is running.
  bool SolveFound() const { return SolveFound_; }
  /// Returns whether a search is running, which has then yielded to the calling handler.
  bool isRunning() const { return isRunning_; }

 private:
  void succeed();
  void giveUp(std::int16_t numberBefore);

  PuzzleState& state_;
  Board& board_;
  PrintPage& page_;
  platform::Desktop& desktop_;
  platform::Form& form_;
  Cell& Solveit_;
  SolutionAttempt attempt_;
  bool SolveFound_ = false;
  bool isRunning_ = false;
};

}  // namespace tessoro
