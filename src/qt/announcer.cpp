#include "qt/announcer.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QStatusBar>
#include <utility>

namespace qt {
namespace {

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void say(QWidget& window, const QString& sentence) {
  QAccessibleAnnouncementEvent event(&window, sentence);
  QAccessible::updateAccessibility(&event);
}

void forget(QWidget& /*window*/) {}

#else

/// The name of a widget that screen readers read out whenever it is shown.
constexpr const char* notificationName = "notification";

QAccessibleInterface* notificationInterface(const QString& /*className*/, QObject* object) {
  if (object->objectName() != notificationName) return nullptr;
  return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Notification);
}

void say(QWidget& window, const QString& sentence) {
  auto* notification = window.findChild<QWidget*>(notificationName);
  if (notification == nullptr) {
    QAccessible::installFactory(notificationInterface);  // has no effect the second time
    // In a status bar it is read out without the word "notification".
    auto* bar = new QStatusBar(&window);
    notification = new QWidget(bar);
    notification->setObjectName(notificationName);
    bar->setGeometry({});
    bar->show();
  }
  notification->hide();
  notification->setAccessibleName(sentence);
  notification->show();
}

/// Keeps the sentence from being read out again when the window is shown again.
void forget(QWidget& window) {
  if (auto* notification = window.findChild<QWidget*>(notificationName)) notification->hide();
}

#endif

}  // namespace

Announcer::Announcer(QWidget& window) : window_(window) {
  QAccessible::installActivationObserver(this);
  window.installEventFilter(this);
}

Announcer::~Announcer() {
  QAccessible::removeActivationObserver(this);
}

void Announcer::announce(const QString& sentence) {
  if (window_.isVisible()) {
    speak();  // the previous sentence, if not spoken yet
    speakLater();
  }
  sentence_ = sentence;
}

void Announcer::speakLater() {
  QMetaObject::invokeMethod(this, [this] { speak(); }, Qt::QueuedConnection);
}

/// Speaks a sentence that has waited for the window to open.
bool Announcer::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ActivationChange && window_.isActiveWindow()) speakLater();
  if (event->type() == QEvent::Hide) forget(window_);
  return QObject::eventFilter(watched, event);
}

void Announcer::accessibilityActiveChanged(bool /*active*/) {
  if (window_.isActiveWindow()) speakLater();
}

QString Announcer::takeSentence() {
  return QAccessible::isActive() ? std::exchange(sentence_, {}) : QString();
}

void Announcer::introduce(const QString& text) {
  if (hasAnnouncements) return announce(text);
  window_.setAccessibleDescription(text);
}

void Announcer::speak() {
  const QString sentence = takeSentence();
  if (sentence.isEmpty()) return;
  QWidget* focused = QApplication::focusWidget();
  if (focused != nullptr && focused == focusInMenu_) {
    QAccessibleEvent event(focused, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
  }
  focusInMenu_ = nullptr;
  say(window_, sentence);
}

void setTitle(QWidget& window, const QString& title) {
  if (!hasAnnouncements) return window.setWindowTitle(title);
  const auto ignore = [](QAccessibleEvent*) {};
  QAccessible::UpdateHandler handler = QAccessible::installUpdateHandler(ignore);
  window.setWindowTitle(title);
  QAccessible::installUpdateHandler(handler);
}

void notifyNewName(QWidget& widget) {
  // A focus event also makes clients discard the old name, and they read out nothing.
  const bool readOut = hasAnnouncements && widget.hasFocus();
  QAccessibleEvent event(&widget, readOut ? QAccessible::Focus : QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

}  // namespace qt
