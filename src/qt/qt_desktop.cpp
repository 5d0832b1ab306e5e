#include "qt/qt_desktop.h"

#include <QMessageBox>
#include <cstdio>
#include <cstdlib>

#include "qt/accessible_view.h"
#include "qt/form_dialog.h"
#include "qt/form_window.h"
#include "qt/look.h"

namespace qt {
namespace {

std::string programName;

/// The toolkit aborts where it finds no display, which would leave a core dump and three
/// paragraphs of plug-in names instead of the one fact that matters.
void reportNoDisplay(QtMsgType type, const QMessageLogContext& /*context*/,
                     const QString& /*message*/) {
  if (type != QtFatalMsg) return;
  std::fprintf(stderr, "%s: cannot open a window, because there is no display to open it on.\n",
               programName.c_str());
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

std::unique_ptr<QApplication> QtDesktop::connect(Arguments& arguments, const Program& program) {
  programName = program.name;
  const QtMessageHandler handler = qInstallMessageHandler(reportNoDisplay);
  auto application = std::make_unique<QApplication>(arguments.count, arguments.values);
  qInstallMessageHandler(handler);
  return application;
}

QtDesktop::QtDesktop(char* programPath, Program program)
    : program_(std::move(program)),
      arguments_{1, {programPath, nullptr}},
      application_(connect(arguments_, program_)),
      printer_(toQString(program_.documentName),
               [this](std::string_view text) { messageBox(text, Buttons::ok); }),
      helpViewer_(
          {QApplication::applicationDirPath(),
           QApplication::applicationDirPath() + "/../share/" + toQString(program_.packageName)}) {
  QApplication::setApplicationName(toQString(program_.name));
  QGuiApplication::setDesktopFileName(toQString(program_.packageName));
  substituteFonts();
  installAccessibleViews();
}

QtDesktop::~QtDesktop() = default;

platform::Desktop::Answer QtDesktop::messageBox(std::string_view text, Buttons buttons) {
  QMessageBox box(main_.get());
  box.setWindowTitle(toQString(program_.messageTitle));
  box.setText(toQString(text));
  // Modal to the main window alone: help stays readable beside it.
  box.setWindowModality(Qt::WindowModal);
  box.setStandardButtons(buttons == Buttons::ok ? QMessageBox::Ok
                                                : QMessageBox::Yes | QMessageBox::No);
  const int answer = box.exec();
  if (buttons == Buttons::ok) return Answer::ok;
  return answer == QMessageBox::Yes ? Answer::yes : Answer::no;
}

void QtDesktop::yield() {
  QApplication::processEvents();
}

void QtDesktop::showModal(platform::Form& form) {
  FormDialog(form, main_.get()).show();
}

void QtDesktop::endProgram() {
  // Leaving through the event loop would let more handlers run; the windows go with the process.
  std::_Exit(EXIT_SUCCESS);
}

FormWindow& QtDesktop::show(platform::Form& form) {
  main_ = std::make_unique<FormWindow>(form);
  printer_.setParentWindow(main_.get());
  main_->show();
  return *main_;
}

int QtDesktop::run(platform::Form& form) {
  show(form);
  return QApplication::exec();
}

}  // namespace qt
