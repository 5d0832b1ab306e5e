#include "print/print_command.h"

#include "board/captions.h"
#include "platform/printer.h"

namespace tessoro {
namespace {

constexpr int emptyLinesAbove = 4;
constexpr std::size_t indentation = 5;

/// Returns the puzzle number that a heading shows; empty for an unused slot.
std::string_view numberIn(std::string_view heading) {
  if (!heading.starts_with(PrintPage::headingText)) return {};
  heading.remove_prefix(PrintPage::headingText.size());
  const std::string_view text = trimmed(heading);
  return text.substr(0, text.find(' '));
}

}  // namespace

std::string PrintCommand::puzzleNumbers() const {
  std::string list;
  for (const int line : PrintPage::headingLines) {
    const std::string_view number = numberIn(page_.PrintLines[line]);
    if (number.empty()) continue;
    if (!list.empty()) list += ", ";
    list += number;
  }
  return list;
}

void PrintCommand::PrintX_Click() {
  using platform::Desktop;
  const std::string question = "Print Puzzle No(s): " + puzzleNumbers();
  if (desktop_.messageBox(question, Desktop::Buttons::yesNo) != Desktop::Answer::yes) return;
  platform::Printer& printer = desktop_.printer();
  printer.setFontName("Courier");
  printer.setFontSize(12);
  for (int line = 0; line < emptyLinesAbove; ++line) printer.printLine("");
  for (int line = 1; line <= PrintPage::lineCount; ++line) {
    printer.printLine(std::string(indentation, ' ') + page_.PrintLines[line]);
  }
  printer.endDocument();
}

}  // namespace tessoro
