#pragma once

#include "app/form1.h"
#include "app/narrator.h"
#include "board/puzzle_state.h"
#include "play/moves.h"

namespace tessoro {

/// What typed characters do: they set the cell that they are typed on, ask what the board shows, or
/// lead to the next cell that is empty.
class KeyCommands {
 public:
  KeyCommands(Form1& form, const PuzzleState& state, Moves& moves, Narrator& narrator)
      : form_(form), state_(state), moves_(moves), narrator_(narrator) {}

  /// A character, letters small, was typed on cell 1..49; `shift` tells whether that key was down.
  /// The result is whether it means anything there.
  bool typedOnCell(int index, char character, bool shift);
  /// The same for the button below the board.
  bool typedOnButton(char character, bool shift);

 private:
  bool ask(char question, int index);
  void goToEmpty(int from, bool backwards);
  bool isToBeSet(int index) const;

  Form1& form_;
  const PuzzleState& state_;
  Moves& moves_;
  Narrator& narrator_;
};

}  // namespace tessoro
