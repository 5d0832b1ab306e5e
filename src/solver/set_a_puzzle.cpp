#include "solver/set_a_puzzle.h"

#include <string>

#include "board/captions.h"

namespace tessoro {

using platform::Desktop;

void SetAPuzzle::SolveMx_Click() {
  if (state_.SolveMode) {
    leave();
  } else {
    enter();
  }
}

void SetAPuzzle::enter() {
  state_.BoardLocked = false;
  for (int k = 1; k <= 4; ++k) {
    Cell& corner = board_.GridDisp[CornerCells[k]];
    corner.enabled = true;
    corner.caption = std::string(noNumber);
    state_.*cornerTargets[k] = 0;
  }
  board_.colourCorners(ColRed);
  board_.setOuterCornersVisible(false);
  board_.clearBetweenCorners();
  state_.SolveMode = true;
  controls_.SolveMx.caption = "End computer solution mode";
  controls_.RightMess.Visible = false;
  controls_.CompMess.Visible = true;
  controls_.Solveit.Visible = true;
  controls_.StartSolx.enabled = false;
  controls_.ShowSolx.enabled = false;
  controls_.NewPuz.Visible = false;
  board_.setSmileysVisible(false);
}

void SetAPuzzle::leave() {
  state_.SolveMode = false;
  // The capital S is intended: it shows that the mode has been on before.
  controls_.SolveMx.caption = "Set a Puzzle for computer to Solve";
  controls_.CompMess.Visible = false;
  state_.BoardLocked = true;
  controls_.Solveit.Visible = false;
  controls_.StartSolx.enabled = true;
  controls_.ShowSolx.enabled = true;
  controls_.NewPuz.Visible = true;
  for (int k = 1; k <= 4; ++k) {
    state_.*cornerTargets[k] = -1;
    // In play, the corners are the given number and three results. The player cannot set these.
    board_.GridDisp[CornerCells[k]].enabled = false;
  }
  board_.colourCorners(ColGreen);
}

void SetAPuzzle::Solveit_Click() {
  if (!state_.SolveMode) return;
  for (int k = 1; k <= 4; ++k) {
    if (board_.GridDisp[CornerCells[k]].caption() == noNumber) {
      desktop_.messageBox("set corner numbers first", Desktop::Buttons::ok);
      return;
    }
  }
  search_.FindSolution();
  if (search_.SolveFound()) {
    state_.BoardLocked = true;
    solutionDisplay_.ShowSolution();
  }
  board_.colourCorners(ColRed);
}

void SetAPuzzle::Solveit_ContextMenu(std::int16_t /*Shift*/, double /*X*/, double /*Y*/) {
  desktop_.messageBox("Help Here", Desktop::Buttons::ok);
}

}  // namespace tessoro
