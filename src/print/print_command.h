#pragma once

#include <string>

#include "platform/desktop.h"
#include "print/print_page.h"

namespace tessoro {

/// Handler of the menu command "Print".
class PrintCommand {
 public:
  PrintCommand(const PrintPage& page, platform::Desktop& desktop)
      : page_(page), desktop_(desktop) {}

  /// Asks whether to print the puzzles, listing their numbers, and prints the page on Yes.
  void PrintX_Click();

 private:
  std::string puzzleNumbers() const;

  const PrintPage& page_;
  platform::Desktop& desktop_;
};

}  // namespace tessoro
