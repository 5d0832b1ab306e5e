#pragma once

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/desktop.h"
#include "platform/form.h"
#include "print/print_page.h"
#include "solver/digits.h"
#include "solver/solution_attempt.h"

namespace tessoro {

/// Makes the puzzles and solves the user's: random attempts until one gives a solution.
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

  /// Searches for a solution with the corners that the targets fix. Finding one makes it the
  /// current puzzle: numbered in the window's title, in the corners of the board, and on the print
  /// page; the outer corner cells are hidden, and `Solveit` is disabled. After 500 attempts the
  /// search gives up: it says so, leaves nothing on the board but the corners, and gives the number
  /// back. The windows process their events before each attempt. The rest of the board is the
  /// caller's to clear.
  void FindSolution();

  /// The last search found a solution, or one is running.
  bool SolveFound() const { return SolveFound_; }
  /// A search is running: the caller is a handler that came in while it yielded.
  bool underWay() const { return underWay_; }

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
  bool underWay_ = false;
};

}  // namespace tessoro
