#pragma once

#include <QApplication>
#include <QWidget>

namespace qt {

/// Whether the widget's window takes no input because a modal box is open over it. The toolkit
/// keeps the mouse and the keyboard away by itself, but not assistive technology.
inline bool isBlocked(const QWidget& widget) {
  const QWidget* box = QApplication::activeModalWidget();
  return box != nullptr && box != widget.window();
}

}  // namespace qt
