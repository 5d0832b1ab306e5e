#pragma once

#include <string_view>

namespace platform {

/// Printer of text documents at 6 lines per inch. The first line after a document's end begins the
/// next document.
class Printer {
 public:
  virtual ~Printer() = default;

  /// Sets the fixed-pitch typeface.
  virtual void setFontName(std::string_view name) = 0;
  /// Sets the font size in points.
  virtual void setFontSize(double points) = 0;

  virtual void printLine(std::string_view text) = 0;

  /// Sends the document to the printer and discards it. Returns when the print system has accepted
  /// it, or when the user has closed the message about a failure. The main window ignores input
  /// until then.
  virtual void endDocument() = 0;
};

}  // namespace platform
