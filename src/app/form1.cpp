#include "app/form1.h"

#include "app/pictures.h"
#include "board/puzzle_state.h"

namespace tessoro {
namespace {

void layOutMessage(platform::Label& label, const char* text, platform::Colour backcolor) {
  label.place = {720, 480, 3000, 270};
  label.caption = text;
  label.backcolor = backcolor;
  label.forecolor = ColWhite;
  label.font = {"Arial", 9.6, true};
}

void layOutButton(Cell& button, const char* text) {
  button.place = {1110, 4020, 2085, 315};
  button.caption = text;
  button.font = "MS Sans Serif";
  button.fontsize = 7.8;
  button.fontbold = false;
}

}  // namespace

Form1::Form1() {
  caption = "Tessoro";
  clientWidth = 4536;
  clientHeight = 4644;
  icon = &calculator;

  layOutMessage(RightMess, "Get corner numbers right", ColGreen);
  layOutMessage(CompMess, "Click corners to set Puzzle", ColRed);
  layOutButton(NewPuz, "New Puzzle");
  layOutButton(Solveit, "Solve Puzzle");

  Frame1.place = {60, 60, 4395, 4515};
  for (int cell = 1; cell < boardCells; ++cell) Frame1.controls.emplace_back(&board.GridDisp[cell]);
  for (int k = 1; k <= 4; ++k) {
    board.NPict[k].picture = &smilingFace;
    Frame1.controls.emplace_back(&board.NPict[k]);
  }
  Frame1.controls.insert(Frame1.controls.end(), {&RightMess, &CompMess, &NewPuz, &Solveit});
  controls = {&board.GridDisp[0], &Frame1};

  Gamex.items = {&StartSolx, &ShowSolx, &dash1,  &SolveMx, &dash2, &PrintX,
                 &dash3,     &Helpx,    &Aboutx, &xx1,     &Exitx};
  menus = {&Gamex};
}

}  // namespace tessoro
