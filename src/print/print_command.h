#pragma once

#include <string>

#include "platform/desktop.h"
#include "print/print_page.h"

namespace tessoro {

/// The menu command "Print".
class PrintCommand {
 public:
  PrintCommand(const PrintPage& page, platform::Desktop& desktop)
      : page_(page), desktop_(desktop) {}

  /// Asks whether to print the puzzles on the page, naming them, and on Yes prints the page.
  void PrintX_Click();

 private:
  std::string puzzleNumbers() const;

  const PrintPage& page_;
  platform::Desktop& desktop_;
};

}  // namespace tessoro
