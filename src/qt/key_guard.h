#pragma once

#include <QDeadlineTimer>
#include <QHash>
#include <QKeyEvent>
#include <QObject>
#include <functional>

namespace qt {

/// Application-wide event filter that drops key events the user did not intend:
///
/// - A held key presses what has the focus once; its repeats do nothing.
/// - A box that has just opened ignores keys for half a second, and until every key that was
///   already down is released. The user meant these keys for what was there before.
class KeyGuard final : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override;

  /// Called when a box has ignored a key.
  std::function<void()> boxIgnoredKey;
  /// Returns the time in milliseconds since any fixed moment. Tests set a clock of their own.
  std::function<qint64()> clock = [] { return QDeadlineTimer::current().deadline(); };

 private:
  /// Returns whether the key press is a repeat of a held key.
  bool isRepeat(const QKeyEvent& event) const;
  /// Returns whether the user may have meant the key for what was there before the box.
  bool isTooEarly(const QKeyEvent& event) const;
  /// Records which keys are down and which was released last.
  void record(const QKeyEvent& event);

  QHash<quint32, qint64> heldUntil_;  ///< when each key stops counting as held, by `clock`
  quint32 released_ = 0;              ///< the key released last
  quint64 releasedAt_ = 0;            ///< when, in milliseconds of the events' clock
  bool boxWaits_ = false;             ///< the last box has not accepted a key yet
  qint64 boxShownAt_ = 0;
};

}  // namespace qt
