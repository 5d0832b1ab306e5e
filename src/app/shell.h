#pragma once

#include "app/about_form.h"
#include "platform/desktop.h"
#include "platform/form.h"

namespace tessoro {

/// Menu commands that do not concern the puzzle.
class Shell {
 public:
  Shell(const platform::Form& form, platform::Desktop& desktop) : form_(form), desktop_(desktop) {}

  void Helpx_Click() {
    desktop_.helpViewer().WinHelpA(form_, "qaviro.hlp", platform::HELP_CONTENTS, 0);
  }
  /// Shows the About box and returns when the player has closed it.
  void Aboutx_Click() {
    AboutForm box;
    desktop_.showModal(box);
  }
  void Exitx_Click() { desktop_.endProgram(); }

 private:
  const platform::Form& form_;
  platform::Desktop& desktop_;
};

}  // namespace tessoro
