#pragma once

#include "app/form1.h"
#include "app/narrator.h"
#include "play/moves.h"

namespace tessoro {

/// What typed characters do: set a cell, ask what the board shows, or go to the next empty cell. P
/// types a plus and X a times.
class KeyCommands {
 public:
  KeyCommands(Form1& form, Moves& moves, Narrator& narrator)
      : form_(form), moves_(moves), narrator_(narrator) {}

  /// Handles a character typed on cell 1..49, or on a button with 0. Letters come in lower case,
  /// and `shift` says whether that key was down. Returns whether the character has a meaning
  /// there.
  bool typed(int index, char character, bool shift);

 private:
  void goToEmpty(int from, bool backwards);
  void set(int index, char character);

  Form1& form_;
  Moves& moves_;
  Narrator& narrator_;
};

}  // namespace tessoro
