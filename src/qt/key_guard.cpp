#include "qt/key_guard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QWindow>
#include <algorithm>
#include <array>

#include "qt/control_widget.h"

namespace qt {
namespace {

constexpr int boxPatience = 500;  // milliseconds
/// Within which a key that is held down begins to repeat, in milliseconds.
constexpr int longestDelay = 1000;

/// The keys that go on while they are held down.
constexpr std::array leadingKeys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                                 Qt::Key_Down, Qt::Key_Tab,   Qt::Key_Backtab};

/// What stays the same from a key's press to its release: with Shift let go in between, its name
/// does not.
quint32 idOf(const QKeyEvent& event) {
  return event.nativeScanCode() != 0 ? event.nativeScanCode() : static_cast<quint32>(event.key());
}

bool pressesSomething(int key) {
  const QWidget* focused = QApplication::focusWidget();
  return (dynamic_cast<const ControlWidget*>(focused) != nullptr ||
          dynamic_cast<const QAbstractButton*>(focused) != nullptr) &&
         std::ranges::find(leadingKeys, key) == leadingKeys.end();
}

}  // namespace

bool KeyGuard::eventFilter(QObject* watched, QEvent* event) {
  const auto* window = qobject_cast<QWindow*>(watched);
  if (window == nullptr) return false;
  const bool isBox = window->modality() != Qt::NonModal;
  if (event->type() == QEvent::Show && isBox) {
    boxWaits_ = true;
    boxShown_.start();
  }
  auto* key = dynamic_cast<QKeyEvent*>(event);
  if (key == nullptr) return false;
  // While a screen reader listens to the keyboard, another filter may be ahead of this one, and
  // pass on nothing but copies, which do not tell their time.
  if (!key->spontaneous()) {
    const auto goAhead = [this] { qApp->installEventFilter(this); };
    QMetaObject::invokeMethod(this, goAhead, Qt::QueuedConnection);
  }
  const bool tooEarly = isBox && isTooEarly(*key);
  const bool repeat = isRepeat(*key);
  keep(*key);
  if (event->type() == QEvent::ShortcutOverride && tooEarly) {
    event->accept();  // it is no shortcut either
    return true;
  }
  if (event->type() != QEvent::KeyPress) return false;
  if (tooEarly) {
    if (keptFromBox) keptFromBox();
    return true;
  }
  if (isBox && !repeat) boxWaits_ = false;
  return repeat && pressesSomething(key->key());
}

/// Where the next press of a key that is held down has not arrived yet, the X server's repeats are
/// not marked as such; but they come at the very time of the release that goes with them.
bool KeyGuard::isRepeat(const QKeyEvent& event) const {
  return event.isAutoRepeat() || (event.type() == QEvent::KeyPress && idOf(event) == released_ &&
                                  event.timestamp() == releasedAt_);
}

bool KeyGuard::isTooEarly(const QKeyEvent& event) const {
  const auto isOtherDown = [&](const auto& held) {
    return held.first != idOf(event) && !held.second.hasExpired();
  };
  return boxWaits_ &&
         (boxShown_.elapsed() < boxPatience || isRepeat(event) ||
          std::any_of(held_.constKeyValueBegin(), held_.constKeyValueEnd(), isOtherDown));
}

/// A key may come up unnoticed, in another program or while the focus goes to another window. One
/// that is down repeats, so it counts as let go when nothing has been heard of it for a second.
void KeyGuard::keep(const QKeyEvent& event) {
  if (event.type() == QEvent::KeyPress) {
    held_[idOf(event)] = QDeadlineTimer(longestDelay);
  } else if (event.type() == QEvent::KeyRelease && !event.isAutoRepeat()) {
    held_.remove(idOf(event));
    if (event.timestamp() == 0) return;
    released_ = idOf(event);
    releasedAt_ = event.timestamp();
  }
}

}  // namespace qt
