#pragma once

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"
#include "play/corner_check.h"
#include "rules/results.h"
#include "solver/digits.h"
#include "solver/set_a_puzzle.h"
#include "solver/solution_search.h"

namespace tessoro {

/// The two commands that start a new position on the board.
class NewGame {
 public:
  NewGame(PuzzleState& state, Board& board, Results& results, CornerCheck& cornerCheck,
          SolutionSearch& search, SetAPuzzle& setAPuzzle, Digits& digits,
          platform::Label& RightMess)
      : state_(state),
        board_(board),
        results_(results),
        cornerCheck_(cornerCheck),
        search_(search),
        setAPuzzle_(setAPuzzle),
        digits_(digits),
        RightMess_(RightMess) {}

  /// Handles the button "New Puzzle": leaves set-a-puzzle mode, clears the board and makes a new
  /// puzzle.
  void NewPuz_Click();
  /// Handles the menu command "Start a Solution": fills the board with random numbers, the puzzle's
  /// own at the top left, and "+" everywhere, for the player to change.
  void StartSolx_Click();

 private:
  PuzzleState& state_;
  Board& board_;
  Results& results_;
  CornerCheck& cornerCheck_;
  SolutionSearch& search_;
  SetAPuzzle& setAPuzzle_;
  Digits& digits_;
  platform::Label& RightMess_;
};

}  // namespace tessoro
