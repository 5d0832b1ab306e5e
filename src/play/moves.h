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

  /// A mouse button went down on cell `Index`, 0..53; on one above 49 it does nothing. The right
  /// button steps a number down, any other up; an operator moves on with every button. There is no
  /// guard against result, "=" or hole cells: they are disabled and raise no event.
  void GridDisp_MouseDown(int Index, const platform::MousePress& press);
  /// Whether the character can stand in cell 1..49: a digit 1..9 in a number, and in a corner while
  /// the user states a puzzle, or an operator.
  bool canShow(int index, char character) const;
  /// Has the cell show a character that can stand there, in one move: as if it had stood one step
  /// before and had been pressed with the left button. One that stands there already is no move.
  void showCharacter(int index, char character);

 private:
  bool isOperator(int index) const;
  void setCell(int index, const std::string& caption);
  void inputCorner(int index, const std::string& caption);
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
