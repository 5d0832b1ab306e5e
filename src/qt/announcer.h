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

  /// Speaks the sentence once what goes on has come to its end, so that it comes after what the
  /// screen reader says of that by itself. Until the window is shown and a screen reader listens,
  /// the last sentence waits.
  void announce(const QString& sentence);
  /// Has the text spoken when the window is shown. A notification would make older screen readers
  /// name a dialog twice; newer ones would speak a description twice.
  void introduce(const QString& text);
  /// Has the focus told before the next sentence: a menu has closed, which the toolkit takes for no
  /// change.
  void tellFocusFirst() { focusFirst_ = true; }
  /// The sentence that a screen reader is to hear but has not yet, for the caller to have it
  /// spoken.
  QString takeSentence();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void accessibilityActiveChanged(bool active) override;
  void speak();
  void speakLater();

  QWidget& window_;
  QString sentence_;  ///< not spoken yet
  bool focusFirst_ = false;
  QWidget* notification_ = nullptr;  ///< made when first needed
};

/// Sets the title of a window, or tells a new name of a widget, to clients of assistive technology
/// unless a screen reader would read out what a sentence tells already.
void setTitle(QWidget& window, const QString& title);
void tellNewName(QWidget& widget);

/// Has the toolkit present notifications to assistive technology.
void installNotifications();

}  // namespace qt
