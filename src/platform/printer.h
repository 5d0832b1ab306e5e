#pragma once

#include <string_view>

namespace platform {

/// Prints lines of text, one below the other, at 6 lines to the inch. A document begins with the
/// first line after the last document's end.
class Printer {
 public:
  Printer() = default;
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;
  virtual ~Printer() = default;

  /// The typeface, in which every character is as wide as the next.
  virtual void setFontName(std::string_view name) = 0;
  /// The size of the font in points.
  virtual void setFontSize(double points) = 0;

  /// Adds a line to the document.
  virtual void printLine(std::string_view text) = 0;

  /// Ends the document and releases it to the printer. Returns when the print system has accepted
  /// it, or the user has been told that it has not or may not have; till then the main window takes
  /// no input. The document is gone in each case.
  virtual void endDocument() = 0;
};

}  // namespace platform
