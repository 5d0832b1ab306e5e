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

/// Commands that begin a new puzzle or a new position.
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

  /// Leaves set-a-puzzle mode if it is on, clears the board and makes a new puzzle.
  void NewPuz_Click();
  /// Fills the board with random numbers and "+". The given number at the top left stays.
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
