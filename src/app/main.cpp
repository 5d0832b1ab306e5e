#include "app/game.h"
#include "qt/qt_desktop.h"
#include "solver/digits.h"

int main(int /*argc*/, char* argv[]) {
  qt::QtDesktop desktop(argv[0], {.name = "Tessoro",
                                  .messageTitle = "TESSORO",
                                  .documentName = "Tessoro puzzles",
                                  .packageName = "tessoro"});
  tessoro::ReseededDigits digits(desktop);
  tessoro::Game game(desktop, digits);
  game.startUp.Form_Load();
  return desktop.run(game.form);
}
