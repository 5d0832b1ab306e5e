#pragma once

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"
#include "platform/mouse.h"
#include "play/corner_check.h"
#include "rules/results.h"

namespace tessoro {

/// What a mouse press on the board does: a move of the player, or, while the user states a puzzle,
/// the input of a corner's number.
class Moves {
 public:
  Moves(PuzzleState& state, Board& board, Results& results, CornerCheck& cornerCheck,
        platform::Label& RightMess, Cell& Solveit)
      : state_(state),
        board_(board),
        results_(results),
        cornerCheck_(cornerCheck),
        RightMess_(RightMess),
        Solveit_(Solveit) {}

  /// A mouse button went down on cell `Index`, 0..53; on one above 49 it does nothing. The right
  /// button steps a number down, any other up; an operator moves on with every button. There is no
  /// guard against result, "=" or hole cells: they are disabled and raise no event.
  void GridDisp_MouseDown(int Index, const platform::MousePress& press);

 private:
  void inputCorner(int index, platform::MouseButton button);
  void play(int index, platform::MouseButton button);
  void beginMove();
  void moveNumber(Cell& cell, platform::MouseButton button);
  void moveOperator(int index);

  PuzzleState& state_;
  Board& board_;
  Results& results_;
  CornerCheck& cornerCheck_;
  platform::Label& RightMess_;
  Cell& Solveit_;
};

}  // namespace tessoro
