#pragma once

#include <cstdint>

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"
#include "platform/desktop.h"
#include "platform/form.h"
#include "play/solution_display.h"
#include "solver/solution_search.h"

namespace tessoro {

/// Mode in which the player sets the four corners of a puzzle and the computer solves it.
class SetAPuzzle {
 public:
  /// Controls that the mode shows, hides or disables.
  struct Controls {
    platform::MenuItem& SolveMx;
    platform::MenuItem& StartSolx;
    platform::MenuItem& ShowSolx;
    platform::Label& RightMess;
    platform::Label& CompMess;
    Cell& NewPuz;
    Cell& Solveit;
  };

  SetAPuzzle(PuzzleState& state, Board& board, SolutionSearch& search,
             SolutionDisplay& solutionDisplay, platform::Desktop& desktop, Controls controls)
      : state_(state),
        board_(board),
        search_(search),
        solutionDisplay_(solutionDisplay),
        desktop_(desktop),
        controls_(controls) {}

  /// Enters the mode, or leaves it if it is on.
  void SolveMx_Click();
  /// Searches for a solution with the player's corners and shows it.
  void Solveit_Click();
  /// Shows a message after a right-click on "Solve Puzzle"; ignores its arguments.
  void Solveit_ContextMenu(std::int16_t Shift, double X, double Y);

 private:
  void enter();
  void leave();

  PuzzleState& state_;
  Board& board_;
  SolutionSearch& search_;
  SolutionDisplay& solutionDisplay_;
  platform::Desktop& desktop_;
  Controls controls_;
};

}  // namespace tessoro
