#pragma once

#include <QDialog>
#include <QWidget>

namespace qt {

/// Returns whether the widget's window ignores input because a modal box is open over it, or about
/// to open. Qt itself blocks the mouse and the keyboard, but not accessibility clients.
bool isBlocked(const QWidget& widget);

/// Gives a screen reader, if one is running, 100 ms to notice the key that the user has just
/// pressed; input waits. Call before a window opens or closes: a screen reader that notices the key
/// later interrupts what it says about the window.
void waitForScreenReader();

/// Shows the dialog modally and returns as `QDialog::exec` does. Minimising the dialog alone counts
/// as closing it: some desktops have no way to bring it back.
int runModal(QDialog& dialog);

}  // namespace qt
