#include "solver/solution_search.h"

#include <limits>
#include <string>

#include "board/captions.h"

namespace tessoro {
namespace {

constexpr int maxTries = 500;

/// Returns the following puzzle number, which is 1 after 32767.
constexpr std::int16_t nextPuzzleNo(std::int16_t number) {
  const bool last = number == std::numeric_limits<std::int16_t>::max();
  return static_cast<std::int16_t>(last ? 1 : number + 1);
}

}  // namespace

void SolutionSearch::FindSolution() {
  isRunning_ = true;
  const std::int16_t numberBefore = state_.PuzzleNo;
  state_.PuzzleNo = nextPuzzleNo(numberBefore);
  SolveFound_ = true;
  form_.caption = "Puzzle Number " + signedNumberText(state_.PuzzleNo);
  board_.setSmileysVisible(false);

  for (int SearchTries = 1;; ++SearchTries) {
    desktop_.yield();
    if (SearchTries > maxTries) {
      giveUp(numberBefore);
      break;
    }
    if (attempt_.run()) {
      succeed();
      break;
    }
  }
  isRunning_ = false;
}

void SolutionSearch::succeed() {
  for (int k = 1; k <= 4; ++k) {
    const std::string number{trimmed(state_.SolNumbers[cornerNumbers[k]])};
    board_.GridDisp[CornerCells[k]].caption = number;
    board_.GridDisp[OuterCornerCells[k]].caption = number;
  }
  board_.setOuterCornersVisible(false);
  Solveit_.enabled = false;
  page_.RecordPuzzleForPrint();
}

void SolutionSearch::giveUp(std::int16_t numberBefore) {
  board_.clearBetweenCorners();
  SolveFound_ = false;
  desktop_.messageBox("Cannot Solve This Time !", platform::Desktop::Buttons::ok);
  state_.PuzzleNo = numberBefore;
}

}  // namespace tessoro
