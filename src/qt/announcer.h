#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>
#include <QWidget>

namespace qt {

/// Whether Qt can send announcements to screen readers, as 6.8 and later can. These versions also
/// send the new name with a name change event. Screen readers then read out the new name of the
/// focused widget or of the window.
constexpr bool hasAnnouncements = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);

/// Speaker of sentences through a screen reader, for one window.
class Announcer final : public QObject, private QAccessible::ActivationObserver {
 public:
  explicit Announcer(QWidget& window);
  ~Announcer() override;

  /// Speaks the sentence after the pending events, so that it follows what the screen reader says
  /// about these. The newest sentence waits until the window is shown and a screen reader runs.
  void announce(const QString& sentence);
  /// Speaks the text when the window is shown. From Qt 6.8 on, it is an announcement, because
  /// screen readers would speak a description twice. Elsewhere it is the window's description,
  /// because a sentence would make screen readers name the dialog twice.
  void introduce(const QString& text);
  /// Call when a command has been chosen from the window's menu. Qt sends no focus event when a
  /// menu closes, so the announcer sends one before the next sentence, unless the focus has moved.
  void menuClosed() { focusInMenu_ = window_.focusWidget(); }
  /// Returns and clears the sentence that waits, for a caller that speaks it in another way. Empty
  /// if no sentence waits or no screen reader is running.
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

/// Sets the title of a window without making a screen reader read it out: a sentence already says
/// what has changed.
void setTitle(QWidget& window, const QString& title);
/// Notifies accessibility clients of the widget's new name without making a screen reader read it
/// out, for the same reason.
void notifyNewName(QWidget& widget);

}  // namespace qt
