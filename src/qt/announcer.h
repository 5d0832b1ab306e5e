#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>
#include <QWidget>

namespace qt {

/// Whether Qt can send announcements to screen readers. The versions that can, 6.8 and later, also
/// send the new name with a name change event, so that screen readers read it out if it is that of
/// the focus or the window.
constexpr bool hasAnnouncements = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);

/// Makes a screen reader speak sentences, whatever has the focus.
class Announcer final : public QObject, private QAccessible::ActivationObserver {
 public:
  explicit Announcer(QWidget& window);
  ~Announcer() override;

  /// Speaks the sentence after the pending events, so that it follows what the screen reader says
  /// about them by itself. The last sentence waits until the window is shown and a screen reader
  /// is running.
  void announce(const QString& sentence);
  /// Has the text spoken when the window is shown: as an announcement where Qt has them, because
  /// screen readers would speak a description twice, otherwise as the window's description, because
  /// a sentence would make them name the dialog twice.
  void introduce(const QString& text);
  /// Call when a command has been chosen from the window's menu. Qt sends no focus event when a
  /// menu closes, so the announcer sends one before the next sentence, unless the focus has moved.
  void menuClosed() { focusInMenu_ = window_.focusWidget(); }
  /// Returns and clears the sentence that waits to be spoken, so that the caller can have it
  /// spoken. Empty if there is none or no screen reader is running.
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

/// Sets the title of a window without notifying screen readers that would read it out: a sentence
/// already says what has changed.
void setTitle(QWidget& window, const QString& title);
/// Notifies accessibility clients of the widget's new name, in a way that no screen reader reads
/// out in addition to the sentence.
void notifyNewName(QWidget& widget);

}  // namespace qt
