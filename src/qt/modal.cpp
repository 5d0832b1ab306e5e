#include "qt/modal.h"

#include <QAccessible>
#include <QApplication>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWindow>

namespace qt {
namespace {

bool& boxIsAboutToOpen() {
  static bool value = false;
  return value;
}

}  // namespace

bool isBlocked(const QWidget& widget) {
  const QWidget* box = QApplication::activeModalWidget();
  return boxIsAboutToOpen() || (box != nullptr && box != widget.window());
}

void waitForScreenReader() {
  constexpr int milliseconds = 100;
  if (!QAccessible::isActive()) return;
  const QScopedValueRollback aboutToOpen(boxIsAboutToOpen(), true);
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

int runModal(QDialog& dialog) {
  // A dialog has no QWindow until it is shown.
  const auto watchState = [&dialog] {
    if (dialog.windowHandle() == nullptr) return;
    QObject::connect(
        dialog.windowHandle(), &QWindow::windowStateChanged, &dialog,
        [&dialog](Qt::WindowState state) {
          // A box that was minimised with its window comes back with it.
          const bool isAlone =
              dialog.parentWidget() == nullptr || !dialog.parentWidget()->isMinimized();
          if (state == Qt::WindowMinimized && isAlone) dialog.reject();
        },
        Qt::QueuedConnection);
  };
  QMetaObject::invokeMethod(&dialog, watchState, Qt::QueuedConnection);
  return dialog.exec();
}

}  // namespace qt
