#pragma once

#include <string>

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"
#include "platform/mouse.h"
#include "play/corner_check.h"
#include "rules/results.h"

namespace tessoro {

/// Handlers of mouse presses and typed characters on the board. In play they make moves; in
/// set-a-puzzle mode they set the corners' numbers.
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

  /// Handles a mouse button pressed on cell `Index`, 0..53; above 49 it does nothing. The right
  /// button counts a digit down, any other button up. Every button shows the next operator.
  void GridDisp_MouseDown(int Index, const platform::MousePress& press);

  /// Returns whether cell 0..53 can be set now: in play, a number or an operator until the puzzle
  /// is over; in set-a-puzzle mode, a corner.
  bool canSet(int index) const;
  /// Returns whether the character fits into a cell that can be set: an operator into an operator
  /// cell, a digit 1..9 into any other.
  bool fits(int index, char character) const;
  /// Handles a character typed on an enabled cell 1..49: sets the cell to it if it fits. In play,
  /// typing what the cell already shows is not a move.
  void typeCharacter(int index, char character);

 private:
  bool isOperator(int index) const;
  void setCell(int index, const std::string& caption);
  void play(int index, const std::string& caption);
  void beginMove();

  PuzzleState& state_;
  Board& board_;
  Results& results_;
  CornerCheck& cornerCheck_;
  platform::Label& RightMess_;
  Cell& Solveit_;
};

}  // namespace tessoro
