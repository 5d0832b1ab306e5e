#pragma once

#include "app/form1.h"
#include "app/narrator.h"
#include "play/moves.h"

namespace tessoro {

/// Commands of typed characters: set a cell, read out part of the board, go to the next empty cell.
class KeyCommands {
 public:
  KeyCommands(Form1& form, Moves& moves, Narrator& narrator)
      : form_(form), moves_(moves), narrator_(narrator) {}

  /// Handles a character, in lower case, typed on cell 1..49 or on a button (0). `shift` says
  /// whether Shift was down. Returns whether the character has a meaning there.
  bool typed(int index, char character, bool shift);

 private:
  void goToEmpty(int from, bool backwards);
  void set(int index, char character);

  Form1& form_;
  Moves& moves_;
  Narrator& narrator_;
};

}  // namespace tessoro
