#pragma once

#include <string_view>

#include "platform/form.h"

namespace platform {

/// Command that opens a help file at its contents.
constexpr unsigned HELP_CONTENTS = 3;

/// Viewer of help files in a modeless window.
class HelpViewer {
 public:
  virtual ~HelpViewer() = default;

  /// Opens the help file, named without a path, and returns whether it is shown. The viewer itself
  /// reports failures to the user. `data` is unused, since HELP_CONTENTS is the only command.
  virtual bool WinHelpA(const Form& owner, std::string_view file, unsigned command,
                        unsigned data) = 0;
};

}  // namespace platform
