#pragma once

#include <string_view>

#include "platform/form.h"
#include "platform/help_viewer.h"
#include "platform/printer.h"

namespace platform {

/// Services that the desktop offers the program, apart from showing its controls.
class Desktop {
 public:
  /// `yesNo` has Yes as its default, the button that Return presses.
  enum class Buttons { ok, yesNo, yesNoDefaultNo };
  enum class Answer { ok, yes, no };

  virtual ~Desktop() = default;

  /// Shows a modal message box without an icon, titled with the application's title, and returns
  /// when the user has answered it. Closing the box answers `ok` or `no`.
  virtual Answer messageBox(std::string_view text, Buttons buttons) = 0;
  /// Speaks the sentence with a screen reader, if one is running.
  virtual void announce(std::string_view sentence) = 0;

  /// Processes the windows' pending events; their handlers run inside the call.
  virtual void yield() = 0;

  /// Returns the time of day in seconds since midnight, with fractions: 0 <= t < 86400.
  virtual double secondsSinceMidnight() = 0;

  /// Shows the form modal over the main window and returns when the form has been closed.
  virtual void showModal(Form& form) = 0;

  virtual Printer& printer() = 0;
  virtual HelpViewer& helpViewer() = 0;

  /// Ends the program at once: no further handler runs, and the windows close with it.
  [[noreturn]] virtual void endProgram() = 0;
};

}  // namespace platform
