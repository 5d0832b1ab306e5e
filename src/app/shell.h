#pragma once

#include "app/about_form.h"
#include "platform/desktop.h"
#include "platform/form.h"

namespace tessoro {

/// The menu commands that do not concern the puzzle.
class Shell {
 public:
  Shell(const platform::Form& form, platform::Desktop& desktop) : form_(form), desktop_(desktop) {}

  /// Opens the help file at its contents.
  void Helpx_Click() {
    desktop_.helpViewer().WinHelpA(form_, "qaviro.hlp", platform::HELP_CONTENTS, 0);
  }
  /// Shows the About box and returns when it has been closed.
  void Aboutx_Click() {
    AboutForm box;
    desktop_.showModal(box);
  }
  /// Ends the program at once.
  void Exitx_Click() { desktop_.endProgram(); }

 private:
  const platform::Form& form_;
  platform::Desktop& desktop_;
};

}  // namespace tessoro
