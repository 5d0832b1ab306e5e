#include "play/corner_check.h"

#include "board/captions.h"

namespace tessoro {

bool CornerCheck::isCorrect(int k) const {
  // A missing number reads as 0 on both sides, which is never correct.
  const int number = readNumber(state_.SolNumbers[cornerNumbers[k]]);
  return number != 0 && number == readNumber(board_.GridDisp[CornerCells[k]].caption());
}

void CornerCheck::CheckCorners() {
  state_.BoardLocked = false;
  bool solved = true;
  for (int k = 1; k <= 4; ++k) {
    const bool correct = isCorrect(k);
    board_.GridDisp[OuterCornerCells[k]].Visible = !correct;
    board_.GridDisp[CornerCells[k]].backcolor = correct ? ColGreen : ColBlack;
    board_.NPict[k].Visible = correct;
    solved = solved && correct;
  }
  if (!solved) return;
  RightMess_.Visible = false;
  state_.BoardLocked = true;
  if (beforeMessage) beforeMessage();
  desktop_.messageBox("You got it !", platform::Desktop::Buttons::ok);
}

}  // namespace tessoro
