#include "board/start_up.h"

namespace tessoro {

void StartUp::Form_Load() {
  CompMess_.Visible = false;
  page_.InitPrintPage();
  Solveit_.Visible = false;
  board_.clear();
  for (int cell = 0; cell < boardCells; ++cell) setLook(cell);
  board_.colourCorners(ColGreen);
  for (int k = 1; k <= 4; ++k) board_.GridDisp[CornerCells[k]].forecolor = ColWhite;
  // The puzzle gives the number at the top left, so the player cannot change it.
  board_.GridDisp[CornerCells[1]].enabled = false;
  board_.SetCellTags();
  search_.FindSolution();
}

void StartUp::setLook(int index) {
  Cell& cell = board_.GridDisp[index];
  const CellRole role = roleOf(index);
  cell.enabled =
      role == CellRole::number || role == CellRole::operatorSign || role == CellRole::spare;
  if (role == CellRole::hole) cell.backcolor = ColBlack;
  if (role != CellRole::outerCorner) return;
  cell.Visible = false;
  cell.backcolor = ColGreen;
  cell.forecolor = ColWhite;
}

}  // namespace tessoro
