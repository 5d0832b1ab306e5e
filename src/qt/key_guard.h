#pragma once

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QHash>
#include <QKeyEvent>
#include <QObject>
#include <functional>

namespace qt {

/// Keeps away the keys that nobody means, as the event filter of an application:
///
/// - A key that is held down presses what has the focus once; its repeats do nothing.
/// - A box that has just come up takes no key for half a second, nor before all keys have been let
///   go: they were meant for what was there before, and it may not have been met yet.
class KeyGuard final : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override;

  /// A key has been kept away from a box.
  std::function<void()> keptFromBox;

 private:
  /// Whether a key that is held down has been pressed again by the keyboard itself.
  bool isRepeat(const QKeyEvent& event) const;
  /// Whether the key may have been meant for what was there before the box.
  bool isTooEarly(const QKeyEvent& event) const;
  /// Keeps in mind which keys are down, and which came up last.
  void keep(const QKeyEvent& event);

  QHash<quint32, QDeadlineTimer> held_;  ///< till when a key counts as down
  quint32 released_ = 0;  ///< the key that came up last, and when, in ms of the events' clock
  quint64 releasedAt_ = 0;
  bool boxWaits_ = false;   ///< no key has been meant for the last box yet
  QElapsedTimer boxShown_;  ///< since it came up
};

}  // namespace qt
