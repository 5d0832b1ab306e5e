#include "play/solution_display.h"

#include <string>

#include "board/captions.h"

namespace tessoro {

void SolutionDisplay::ShowSolx_Click() {
  state_.SolveMode = false;
  RightMess_.Visible = false;
  ShowSolution();
  state_.BoardLocked = true;
  board_.setSmileysVisible(true);
}

void SolutionDisplay::ShowSolution() {
  board_.colourCorners(ColGreen);
  board_.setOuterCornersVisible(false);
  for (int k = 1; k <= 16; ++k) {
    board_.GridDisp[numberCells[k]].caption = std::string(trimmed(state_.SolNumbers[k]));
    board_.GridDisp[operatorCells[k]].caption = state_.SolOperators[k];
  }
}

}  // namespace tessoro
