#pragma once

#include <QDialog>
#include <QWidget>

namespace qt {

/// Returns whether the widget's window takes no input because a modal box is open over it, or about
/// to open. Qt keeps the mouse and the keyboard away by itself, but not accessibility clients.
bool isBlocked(const QWidget& widget);

/// Gives a screen reader, if one listens, 100 ms to notice the key that the player has just
/// pressed. To be called before a window opens or closes: a screen reader that notices the key only
/// then would cut short what it says of the window. What the player does meanwhile waits.
void waitForScreenReader();

/// Shows the dialog modally and returns as `QDialog::exec` does. Minimising the dialog counts as
/// closing it: some desktops have no way to bring a minimised dialog back.
int runModal(QDialog& dialog);

}  // namespace qt
