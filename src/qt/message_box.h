#pragma once

#include <QMessageBox>
#include <QString>
#include <QTimer>

#include "platform/desktop.h"
#include "qt/announcer.h"
#include "qt/key_guard.h"

namespace qt {

/// A message box without an icon, modal to its parent alone, so that help stays readable beside it.
///
/// A screen reader reads the sentence that was still to be spoken together with the box's text: by
/// itself the sentence would come after the box and cut the text short.
class MessageBox final : public QMessageBox {
 public:
  using Buttons = platform::Desktop::Buttons;
  using Answer = platform::Desktop::Answer;

  /// `pendingSentence` may be empty.
  MessageBox(const QString& title, const QString& text, Buttons buttons,
             const QString& pendingSentence, KeyGuard& keyGuard, QWidget* parent);
  ~MessageBox() override;

  /// Shows the box and returns the player's answer. Closing the box answers `ok` or `no`.
  Answer ask();

 private:
  KeyGuard& keyGuard_;
  Announcer announcer_{*this};
  QTimer repeat_;
};

}  // namespace qt
