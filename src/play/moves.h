#pragma once

#include <string>

#include "board/board.h"
#include "board/puzzle_state.h"
#include "platform/control.h"
#include "platform/mouse.h"
#include "play/corner_check.h"
#include "rules/results.h"

namespace tessoro {

/// What a mouse press or a typed character on the board does: a move of the player, or, while the
/// user states a puzzle, the input of a corner's number.
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
  /// button counts a digit down, any other up; an operator moves on with every button.
  void GridDisp_MouseDown(int Index, const platform::MousePress& press);

  /// Returns whether cell 0..53 can be set now: in play a number or an operator, until the puzzle
  /// is over, and while the user states a puzzle a corner.
  bool takes(int index) const;
  /// Returns whether the character fits into a cell that can be set: an operator into an operator
  /// cell, a digit 1..9 into any other.
  bool fits(int index, char character) const;
  /// Handles a character typed on an enabled cell 1..49: one that fits is a move straight to it. In
  /// play, the character that the cell shows already is no move.
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
