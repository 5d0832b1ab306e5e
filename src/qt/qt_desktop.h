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

/// How the program presents itself to the desktop.
struct Program {
  std::string name;
  std::string messageTitle;  ///< the title of every message box
  std::string documentName;  ///< the title of printed pages
  std::string packageName;   ///< also of the desktop entry and the folder in "share"
};

/// Desktop implemented with Qt.
class QtDesktop final : public platform::Desktop {
 public:
  /// Connects to the display. On failure prints the reason on standard error and ends the program
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

  /// Shows the form as the program's main window. It must be closed before the form is destroyed.
  /// A screen reader speaks the greeting once the window is shown.
  FormWindow& show(platform::Form& form, std::string_view greeting);
  /// Closes the main window without notifying the form.
  void close();
  /// Shows the form, handles its events until the program ends and returns the exit status.
  int run(platform::Form& form, std::string_view greeting);

 private:
  /// Makes Qt's application object; ends the program on failure.
  std::unique_ptr<QApplication> makeApplication();

  Program program_;
  // Qt gets only the program's path, because the program has no arguments.
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
