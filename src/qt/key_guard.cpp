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

/// The keys that go on while they are held down.
constexpr std::array<int, 6> leadingKeys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                                         Qt::Key_Down, Qt::Key_Tab,   Qt::Key_Backtab};

bool pressesSomething(int key) {
  const QWidget* focused = QApplication::focusWidget();
  return (dynamic_cast<const ControlWidget*>(focused) != nullptr ||
          dynamic_cast<const QAbstractButton*>(focused) != nullptr) &&
         std::ranges::find(leadingKeys, key) == leadingKeys.end();
}

}  // namespace

bool KeyGuard::eventFilter(QObject* watched, QEvent* event) {
  // A key that comes up in another program is not told here.
  if (event->type() == QEvent::ApplicationStateChange) held_.clear();
  const auto* window = qobject_cast<QWindow*>(watched);
  if (window == nullptr) return false;
  const bool isBox = window->modality() != Qt::NonModal;
  if (event->type() == QEvent::Show && isBox) {
    boxWaits_ = true;
    boxShown_.start();
  }
  const auto* key = dynamic_cast<QKeyEvent*>(event);
  if (key == nullptr) return false;
  const bool tooEarly = isBox && isTooEarly(*key);
  const bool repeat = isRepeat(*key);
  // While a screen reader listens to the keyboard, each event comes a second time, without its
  // time.
  if (key->spontaneous()) keep(*key);
  if (event->type() == QEvent::ShortcutOverride && tooEarly) {
    event->accept();  // it is no shortcut either
    return true;
  }
  if (event->type() != QEvent::KeyPress) return false;
  if (tooEarly) return true;
  if (isBox && !repeat) boxWaits_ = false;
  return repeat && pressesSomething(key->key());
}

/// Where the next press of a key that is held down has not arrived yet, the X server's repeats are
/// not marked as such; but they come at the very time of the release that goes with them.
bool KeyGuard::isRepeat(const QKeyEvent& event) const {
  return event.isAutoRepeat() || (event.type() == QEvent::KeyPress && event.key() == released_ &&
                                  event.timestamp() == releasedAt_);
}

bool KeyGuard::isTooEarly(const QKeyEvent& event) const {
  const bool otherHeld = std::ranges::any_of(held_, [&](int key) { return key != event.key(); });
  return boxWaits_ && (boxShown_.elapsed() < boxPatience || otherHeld || isRepeat(event));
}

void KeyGuard::keep(const QKeyEvent& event) {
  if (event.type() == QEvent::KeyPress) {
    held_.insert(event.key());
  } else if (event.type() == QEvent::KeyRelease && !event.isAutoRepeat()) {
    held_.remove(event.key());
    released_ = event.key();
    releasedAt_ = event.timestamp();
  }
}

}  // namespace qt
