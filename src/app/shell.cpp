#include "app/shell.h"

#include "app/about_form.h"

namespace tessoro {

void Shell::Helpx_Click() {
  desktop_.helpViewer().WinHelpA(form_, "qaviro.hlp", platform::HELP_CONTENTS, 0);
}

void Shell::Aboutx_Click() {
  AboutForm box;
  desktop_.showModal(box);
}

void Shell::Exitx_Click() {
  desktop_.endProgram();
}

}  // namespace tessoro
