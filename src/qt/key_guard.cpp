#include "qt/key_guard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QWindow>
#include <algorithm>
#include <array>

#include "qt/control_widget.h"

namespace qt {
namespace {

constexpr int boxDelay = 500;  // milliseconds
/// The longest time until a held key begins to repeat, in milliseconds.
constexpr int longestRepeatDelay = 1000;

/// The keys that keep moving the focus while they are held.
constexpr std::array movingKeys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                                Qt::Key_Down, Qt::Key_Tab,   Qt::Key_Backtab};

/// Returns what identifies a key from its press to its release. Its `key()` changes if Shift is
/// released in between.
quint32 idOf(const QKeyEvent& event) {
  return event.nativeScanCode() != 0 ? event.nativeScanCode() : static_cast<quint32>(event.key());
}

/// Returns whether the key presses a control, or a shortcut with Ctrl, and does not move the focus.
bool pressesSomething(const QKeyEvent& event) {
  const QWidget* focused = QApplication::focusWidget();
  return (dynamic_cast<const ControlWidget*>(focused) != nullptr ||
          dynamic_cast<const QAbstractButton*>(focused) != nullptr ||
          event.modifiers().testFlag(Qt::ControlModifier)) &&
         std::ranges::find(movingKeys, event.key()) == movingKeys.end();
}

}  // namespace

bool KeyGuard::eventFilter(QObject* watched, QEvent* event) {
  const auto* window = qobject_cast<QWindow*>(watched);
  if (window == nullptr) return false;
  const bool isBox = window->modality() != Qt::NonModal;
  if (event->type() == QEvent::Show && isBox) {
    boxWaits_ = true;
    boxShownAt_ = clock();
  }
  auto* key = dynamic_cast<QKeyEvent*>(event);
  if (key == nullptr) return false;
  // While a screen reader listens to the keyboard, Qt's accessibility filter may run before this
  // one and pass on only copies, which carry no time stamp.
  if (!key->spontaneous()) {
    const auto moveToFront = [this] { qApp->installEventFilter(this); };
    QMetaObject::invokeMethod(this, moveToFront, Qt::QueuedConnection);
  }
  const bool tooEarly = isBox && isTooEarly(*key);
  const bool repeat = isRepeat(*key);
  record(*key);
  if (event->type() == QEvent::ShortcutOverride && tooEarly) {
    event->accept();  // keeps it from acting as a shortcut
    return true;
  }
  if (event->type() != QEvent::KeyPress) return false;
  if (tooEarly) {
    if (boxIgnoredKey) boxIgnoredKey();
    return true;
  }
  if (isBox && !repeat) boxWaits_ = false;
  return repeat && pressesSomething(*key);
}

/// An X server repeats a key as a release and a press with the same time stamp. Qt does not mark
/// them as a repeat if the press arrives after Qt has handled the release.
bool KeyGuard::isRepeat(const QKeyEvent& event) const {
  return event.isAutoRepeat() || (event.type() == QEvent::KeyPress && idOf(event) == released_ &&
                                  event.timestamp() == releasedAt_);
}

bool KeyGuard::isTooEarly(const QKeyEvent& event) const {
  const qint64 now = clock();
  const auto isOtherHeld = [&](const auto& held) {
    return held.first != idOf(event) && held.second > now;
  };
  return boxWaits_ &&
         (now - boxShownAt_ < boxDelay || isRepeat(event) ||
          std::any_of(heldUntil_.constKeyValueBegin(), heldUntil_.constKeyValueEnd(), isOtherHeld));
}

/// The release of a key may go to another program, or get lost while the focus changes windows.
/// Since a held key repeats, a key that sends nothing for a second counts as released.
void KeyGuard::record(const QKeyEvent& event) {
  if (event.type() == QEvent::KeyPress) {
    heldUntil_[idOf(event)] = clock() + longestRepeatDelay;
  } else if (event.type() == QEvent::KeyRelease && !event.isAutoRepeat()) {
    heldUntil_.remove(idOf(event));
    if (event.timestamp() == 0) return;
    released_ = idOf(event);
    releasedAt_ = event.timestamp();
  }
}

}  // namespace qt
