#include "qt/qt_desktop.h"

#include <QFontMetrics>
#include <QSettings>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <utility>

#include "qt/convert.h"
#include "qt/form_dialog.h"
#include "qt/form_view.h"
#include "qt/form_window.h"
#include "qt/message_box.h"
#include "qt/modal.h"

namespace qt {
namespace {

constexpr const char* noDisplay = "cannot open a window: there is no display.";

/// Messages of Qt when it cannot open windows, and what to tell the user instead; the most helpful
/// first.
constexpr auto knownFailures = std::to_array<std::pair<const char*, const char*>>({
    {"Could not find the Qt platform plugin \"wayland\"",
     "cannot open a window in this Wayland session, because the package qt6-wayland is not "
     "installed."},
    {"could not connect to display", noDisplay},
    {"Failed to create wl_display", noDisplay},
});

[[noreturn]] void exitWith(const char* message) {
  std::cerr << qPrintable(QCoreApplication::applicationName()) << ": " << message << "\n";
  std::_Exit(EXIT_FAILURE);
}

/// Returns the messages of Qt while it starts.
QString& startupMessages() {
  static QString messages;
  return messages;
}

/// Message handler that collects Qt's messages and, when Qt gives up, ends the program with one
/// helpful message. Qt itself would abort with a core dump and paragraphs of plug-in names. An
/// unknown problem is reported in Qt's words, except for warnings without a category, such as the
/// one about the locale, which are never the reason.
void reportStartupFailure(QtMsgType type, const QMessageLogContext& context,
                          const QString& message) {
  static QString reasons;
  startupMessages() += qFormatLogMessage(type, context, message) + '\n';
  if (type == QtFatalMsg || QByteArrayView(context.category).startsWith("qt.")) {
    reasons += message.trimmed() + '\n';
  }
  if (type != QtFatalMsg) return;
  const auto* const found = std::ranges::find_if(
      knownFailures, [](const auto& failure) { return startupMessages().contains(failure.first); });
  exitWith(found == knownFailures.end() ? qPrintable(reasons) : found->second);
}

}  // namespace

std::unique_ptr<QApplication> QtDesktop::makeApplication() {
  QCoreApplication::setApplicationName(toQString(program_.name));
  const QtMessageHandler handler = qInstallMessageHandler(reportStartupFailure);
  auto application = std::make_unique<QApplication>(argumentCount_, arguments_.data());
  if (!QFontMetrics(QApplication::font()).inFont('0')) {
    exitWith(
        "cannot show any text, because no font is installed; install the package "
        "fonts-liberation.");
  }
  qInstallMessageHandler(handler);
  std::cerr << qPrintable(std::exchange(startupMessages(), {}));
  return application;
}

QtDesktop::QtDesktop(char* programPath, Program program)
    : program_(std::move(program)),
      arguments_{programPath, nullptr},
      application_(makeApplication()),
      zoom_([this](double factor) { return main_ == nullptr || main_->fitsAt(factor); },
            [this](const QString& sentence) { announce(sentence.toStdString()); }),
      printer_(
          toQString(program_.documentName),
          [this](std::string_view text, Buttons buttons) { return messageBox(text, buttons); }),
      helpViewer_(
          {QApplication::applicationDirPath(),
           QApplication::applicationDirPath() + "/../share/" + toQString(program_.packageName)},
          zoom_) {
  QGuiApplication::setDesktopFileName(toQString(program_.packageName));
  // Qt's file dialog would write a settings file into the user's home.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
  substituteFonts();
  application_->installEventFilter(&zoom_);
  application_->installEventFilter(&keyGuard_);
}

QtDesktop::~QtDesktop() = default;

platform::Desktop::Answer QtDesktop::messageBox(std::string_view text, Buttons buttons) {
  const QString pending = main_ ? main_->announcer().takeSentence() : QString();
  return showMessageBox(toQString(program_.messageTitle), toQString(text), buttons, pending,
                        keyGuard_, main_.get());
}

void QtDesktop::announce(std::string_view sentence) {
  if (main_) main_->announcer().announce(toQString(sentence));
}

void QtDesktop::yield() {
  if (main_) main_->view().setYielding(true);
  QApplication::processEvents();
  if (main_) main_->view().setYielding(false);
}

double QtDesktop::secondsSinceMidnight() {
  const auto now = std::chrono::system_clock::now();
  const auto midnight = std::chrono::floor<std::chrono::days>(now);
  return std::chrono::duration<double>(now - midnight).count();
}

void QtDesktop::showModal(platform::Form& form) {
  waitForScreenReader();
  FormDialog(form, zoom_.factor(), main_.get()).run();
}

void QtDesktop::endProgram() {
  // Leaving through the event loop would let more handlers run.
  std::_Exit(EXIT_SUCCESS);
}

FormWindow& QtDesktop::show(platform::Form& form, std::string_view greeting) {
  main_ = std::make_unique<FormWindow>(form, zoom_);
  printer_.setParentWindow(main_.get());
  announce(greeting);
  main_->show();
  return *main_;
}

void QtDesktop::close() {
  printer_.setParentWindow(nullptr);
  main_.reset();
}

int QtDesktop::run(platform::Form& form, std::string_view greeting) {
  show(form, greeting);
  const int status = QApplication::exec();
  close();
  return status;
}

}  // namespace qt
