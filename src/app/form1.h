#pragma once

#include "board/board.h"
#include "platform/form.h"

namespace tessoro {

/// The main window, with its controls as they are before start-up.
class Form1 final : public platform::Form {
 public:
  Form1();

  platform::Frame Frame1;
  Board board;
  platform::Label RightMess;
  platform::Label CompMess;
  Cell NewPuz;
  Cell Solveit;

  platform::MenuItem Gamex{"Puzzle"};
  platform::MenuItem StartSolx{"Start a Solution"};
  platform::MenuItem ShowSolx{"Show Solution"};
  platform::MenuItem dash1{"-"};
  platform::MenuItem SolveMx{"Set a Puzzle for computer to solve"};
  platform::MenuItem dash2{"-"};
  platform::MenuItem PrintX{"Print"};
  platform::MenuItem dash3{"-"};
  platform::MenuItem Helpx{"Help"};
  platform::MenuItem Aboutx{"About"};
  platform::MenuItem xx1{"-"};
  platform::MenuItem Exitx{"Exit"};
};

}  // namespace tessoro
