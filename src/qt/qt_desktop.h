#pragma once

#include <QApplication>
#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "platform/desktop.h"
#include "platform/form.h"
#include "qt/help_window.h"
#include "qt/key_guard.h"
#include "qt/qt_printer.h"
#include "qt/zoom.h"

namespace qt {

class FormWindow;

/// What the desktop is told of the program.
struct Program {
  std::string name;
  std::string messageTitle;  ///< the title of every message box
  std::string documentName;  ///< of what is printed
  std::string packageName;   ///< of its desktop entry and of its folder of data files in "share"
};

/// The desktop as the toolkit gives it.
class QtDesktop final : public platform::Desktop {
 public:
  /// Connects to the display. Where that fails it says why on standard error and ends the program
  /// with exit status 1.
  QtDesktop(char* programPath, Program program);
  ~QtDesktop() override;

  Answer messageBox(std::string_view text, Buttons buttons) override;
  void announce(std::string_view sentence) override;
  void yield() override;
  void showModal(platform::Form& form) override;
  platform::Printer& printer() override { return printer_; }
  platform::HelpViewer& helpViewer() override { return helpViewer_; }
  double secondsSinceMidnight() override;
  [[noreturn]] void endProgram() override;

  /// Returns the guard, whose clock tests set.
  KeyGuard& keyGuard() { return keyGuard_; }

  /// Shows the form as the program's main window, until it is closed, which has to be before the
  /// form's end. A screen reader speaks the greeting once the window has come up.
  FormWindow& show(platform::Form& form, std::string_view greeting);
  /// Closes the main window; the form is told nothing.
  void close();
  /// Shows the form and handles its events until the program ends; the program's exit status.
  int run(platform::Form& form, std::string_view greeting);

 private:
  /// The toolkit's application; ends the program where it cannot be had.
  std::unique_ptr<QApplication> makeApplication();

  Program program_;
  // The toolkit's own: the program's path alone, since it takes no others.
  int argumentCount_ = 1;
  std::array<char*, 2> arguments_;
  std::unique_ptr<QApplication> application_;
  KeyGuard keyGuard_;
  std::unique_ptr<FormWindow> main_;
  Zoom zoom_;
  QtPrinter printer_;
  QtHelpViewer helpViewer_;
};

}  // namespace qt
