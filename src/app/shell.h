#pragma once

#include "platform/desktop.h"
#include "platform/form.h"

namespace tessoro {

/// The menu commands that do not concern the puzzle.
class Shell {
 public:
  Shell(const platform::Form& form, platform::Desktop& desktop) : form_(form), desktop_(desktop) {}

  /// Opens the help file at its contents.
  void Helpx_Click();
  /// Shows the About box and returns when it has been closed.
  void Aboutx_Click();
  /// Ends the program at once.
  void Exitx_Click();

 private:
  const platform::Form& form_;
  platform::Desktop& desktop_;
};

}  // namespace tessoro
