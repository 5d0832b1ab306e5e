#pragma once

#include <QString>
#include <QWidget>

#include "platform/desktop.h"
#include "qt/key_guard.h"

namespace qt {

/// Shows a message box without an icon, modal to its parent alone, so that help stays readable
/// beside it. Returns the user's answer; closing the box answers `ok` or `no`.
///
/// A screen reader reads `pendingSentence`, which may be empty, together with the box's text. On
/// its own, the sentence would come after the box and interrupt its text.
platform::Desktop::Answer showMessageBox(const QString& title, const QString& text,
                                         platform::Desktop::Buttons buttons,
                                         const QString& pendingSentence, KeyGuard& keyGuard,
                                         QWidget* parent);

}  // namespace qt
