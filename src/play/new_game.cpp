#include "play/new_game.h"

#include <string>

#include "board/captions.h"
#include "board/operators.h"

namespace tessoro {

void NewGame::NewPuz_Click() {
  if (state_.SolveMode) setAPuzzle_.SolveMx_Click();
  state_.BoardLocked = false;
  board_.colourCorners(ColGreen);
  board_.clear();
  RightMess_.Visible = true;
  search_.FindSolution();
}

void NewGame::StartSolx_Click() {
  state_.SolveMode = false;
  // Draws digits for the results, too; updateAll() overwrites them.
  for (int k = 1; k <= 16; ++k) {
    board_.GridDisp[numberCells[k]].caption = numberText(digits_.draw());
    board_.GridDisp[operatorCells[k]].caption = std::string(OpPlus);
  }
  board_.GridDisp[CornerCells[1]].caption = std::string(trimmed(state_.SolNumbers[1]));
  results_.updateAll();
  cornerCheck_.CheckCorners();
}

}  // namespace tessoro
