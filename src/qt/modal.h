#pragma once

#include <QAccessible>
#include <QApplication>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWidget>

namespace qt {

/// Whether a box is about to come up.
inline bool& boxIsComing() {
  static bool coming = false;
  return coming;
}

/// Whether the widget's window takes no input because a modal box is open over it, or about to be.
/// The toolkit keeps the mouse and the keyboard away by itself, but not assistive technology.
inline bool isBlocked(const QWidget& widget) {
  const QWidget* box = QApplication::activeModalWidget();
  return boxIsComing() || (box != nullptr && box != widget.window());
}

/// Screen readers may take in a key only after what it has brought about, and then cut short what
/// they have begun to say of that. While one listens, gives it the time to do so before a window
/// comes or goes; what the user does meanwhile waits.
inline void letKeyBeTakenIn() {
  constexpr int time = 100;  // milliseconds
  if (!QAccessible::isActive()) return;
  const QScopedValueRollback coming(boxIsComing(), true);
  QEventLoop loop;
  QTimer::singleShot(time, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace qt
