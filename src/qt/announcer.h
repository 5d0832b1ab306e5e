#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>
#include <QWidget>

namespace qt {

/// Has a screen reader speak sentences, whatever has the focus.
class Announcer final : public QObject, private QAccessible::ActivationObserver {
 public:
  explicit Announcer(QWidget& window);
  ~Announcer() override;

  /// Speaks the sentence once the events at hand are done, so that it comes after what the screen
  /// reader says of them by itself. The last sentence waits until the window is shown and a screen
  /// reader listens.
  void announce(const QString& sentence);
  /// Has the text spoken when the window is shown: as a sentence where screen readers would speak a
  /// description twice, else as the description, since a sentence would have them name a dialog
  /// twice.
  void introduce(const QString& text);
  /// A command has been chosen from the window's menu. Has the focus told before the next sentence,
  /// unless it moves: the toolkit takes it for no change that the menu is gone.
  void menuClosed() { focusInMenu_ = window_.focusWidget(); }
  /// The sentence that a screen reader is to hear but has not yet, for the caller to have it
  /// spoken.
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

/// Sets the title of a window. Screen readers that would read it out are not told: a sentence says
/// what has changed.
void setTitle(QWidget& window, const QString& title);
/// Tells clients of assistive technology the widget's new name, unless a screen reader would read
/// it out besides the sentence.
void tellNewName(QWidget& widget);

}  // namespace qt
