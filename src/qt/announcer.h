#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>
#include <QWidget>

namespace qt {

/// Whether Qt passes sentences to screen readers as announcements. These versions, 6.8 and later,
/// also send the new name with the event of a changed name, which screen readers then read out if
/// the focus or the window has that name.
constexpr bool hasAnnouncements = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);

/// Makes a screen reader speak sentences, whatever has the focus.
class Announcer final : public QObject, private QAccessible::ActivationObserver {
 public:
  explicit Announcer(QWidget& window);
  ~Announcer() override;

  /// Speaks the sentence after the pending events, so that it follows what the screen reader says
  /// about them by itself. The last sentence waits until the window is shown and a screen reader
  /// listens.
  void announce(const QString& sentence);
  /// Makes the text spoken when the window is shown. With announcements it is one, because screen
  /// readers would speak a description twice; without, it is the window's description, because a
  /// sentence would make them name the dialog twice.
  void introduce(const QString& text);
  /// Call when a command has been chosen from the window's menu. Unless the focus moves, clients
  /// are told of it before the next sentence: to Qt a closing menu does not change the focus.
  void menuClosed() { focusInMenu_ = window_.focusWidget(); }
  /// Returns the sentence that a screen reader has still to speak and forgets it, so that the
  /// caller can have it spoken. Empty if there is none or no screen reader listens.
  QString takeSentence();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void accessibilityActiveChanged(bool active) override;
  void speak();
  void speakLater();

  QWidget& window_;
  QString sentence_;                      ///< not spoken yet
  const QWidget* focusInMenu_ = nullptr;  ///< what had the focus when the menu closed
};

/// Sets the title of a window. Screen readers that would read it out are not notified: a sentence
/// says what has changed.
void setTitle(QWidget& window, const QString& title);
/// Notifies accessibility clients of the widget's new name, in a way that no screen reader reads
/// out in addition to the sentence.
void notifyNewName(QWidget& widget);

}  // namespace qt
