#include "app/game.h"
#include "program.h"
#include "qt/qt_desktop.h"
#include "solver/digits.h"

int main(int /*argc*/, char* argv[]) {
  qt::QtDesktop desktop(argv[0], tessoro::program());
  tessoro::ReseededDigits digits(desktop);
  tessoro::Game game(desktop, digits);
  game.startUp.Form_Load();
  return desktop.run(game.form, game.narrator.firstPuzzle());
}
