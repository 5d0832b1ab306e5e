#pragma once

#include <QAccessible>
#include <QString>
#include <QWidget>
#include <utility>

namespace qt {

/// Has a screen reader speak sentences, whatever has the focus.
class Announcer final : public QAccessible::ActivationObserver {
 public:
  explicit Announcer(QWidget& window);
  ~Announcer();
  Announcer(const Announcer&) = delete;
  Announcer& operator=(const Announcer&) = delete;

  /// Speaks the sentence once what goes on has come to its end, so that it comes after what the
  /// screen reader says of that by itself. Until the window is shown and a screen reader listens,
  /// the last sentence waits.
  void announce(const QString& sentence);
  /// Has the text spoken when the window is shown. A notification would make older screen readers
  /// name a dialog twice; newer ones would speak a description twice.
  void introduce(const QString& text);
  /// Tells where the focus is if a sentence waits to be spoken: a menu has closed, which the
  /// toolkit takes for no change, and the sentence is to come last.
  void tellFocus() const;
  /// The sentence that has not been spoken yet, for the caller to have it spoken.
  QString takeSentence() { return std::exchange(sentence_, {}); }

  /// Speaks the sentence that has waited for the window to be shown.
  void windowActivated();
  void accessibilityActiveChanged(bool active) override;

 private:
  void speak();
  void speakLater();

  QWidget& window_;
  QString sentence_;                 ///< not spoken yet
  QWidget* notification_ = nullptr;  ///< made when first needed
};

/// Sets the title of a window, or tells a new name of a widget, to clients of assistive technology
/// unless a screen reader would read out what a sentence tells already.
void setTitle(QWidget& window, const QString& title);
void tellNewName(QWidget& widget);

/// Has the toolkit present notifications to assistive technology.
void installNotifications();

}  // namespace qt
