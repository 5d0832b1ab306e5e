#pragma once

#include <string_view>

#include "platform/form.h"

namespace platform {

/// The command that opens a help file at its contents.
constexpr unsigned HELP_CONTENTS = 3;

/// Shows help files in a window of its own, beside which the program goes on.
class HelpViewer {
 public:
  HelpViewer() = default;
  HelpViewer(const HelpViewer&) = delete;
  HelpViewer& operator=(const HelpViewer&) = delete;
  virtual ~HelpViewer() = default;

  /// Opens the help file of the given name, without a path, for the owner's program. `data` belongs
  /// to commands other than HELP_CONTENTS, of which there are none. A file that cannot be shown is
  /// reported to the user by the viewer itself; the result says whether it was shown.
  virtual bool WinHelpA(const Form& owner, std::string_view file, unsigned command,
                        unsigned data) = 0;
};

}  // namespace platform
