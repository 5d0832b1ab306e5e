#include "qt/announcer.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <utility>

namespace qt {
namespace {

/// From this version on the toolkit's events of new names carry the name, and screen readers read
/// it out where it is that of the focus or the window. Its event for sentences is as old.
constexpr bool readsNewNames = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);

/// What screen readers read out whenever it is shown.
class Notification final : public QWidget {
 public:
  using QWidget::QWidget;
};

QAccessibleInterface* notificationInterface(const QString& /*className*/, QObject* object) {
  auto* notification = dynamic_cast<Notification*>(object);
  if (notification == nullptr) return nullptr;
  return new QAccessibleWidget(notification, QAccessible::Notification);
}

}  // namespace

Announcer::Announcer(QWidget& window) : window_(window) {
  QAccessible::installFactory(notificationInterface);
  QAccessible::installActivationObserver(this);
  window.installEventFilter(this);
}

Announcer::~Announcer() {
  QAccessible::removeActivationObserver(this);
}

void Announcer::announce(const QString& sentence) {
  if (window_.isVisible()) {
    speak();  // the last sentence, if the next comes before its turn
    speakLater();
  }
  sentence_ = sentence;
}

void Announcer::speakLater() {
  QMetaObject::invokeMethod(this, [this] { speak(); }, Qt::QueuedConnection);
}

/// A sentence may have waited for the window to come up.
bool Announcer::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ActivationChange && window_.isActiveWindow()) speakLater();
  return QObject::eventFilter(watched, event);
}

void Announcer::accessibilityActiveChanged(bool /*active*/) {
  if (window_.isActiveWindow()) speakLater();
}

QString Announcer::takeSentence() {
  return QAccessible::isActive() ? std::exchange(sentence_, {}) : QString();
}

void Announcer::introduce(const QString& text) {
  if (readsNewNames) return announce(text);
  window_.setAccessibleDescription(text);
}

void Announcer::speak() {
  const QString sentence = takeSentence();
  if (sentence.isEmpty()) return;
  QWidget* focused = window_.focusWidget();
  if (std::exchange(focusFirst_, false) && focused != nullptr && focused->hasFocus()) {
    QAccessibleEvent event(focused, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
  }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent event(&window_, sentence);
  QAccessible::updateAccessibility(&event);
#else
  if (notification_ == nullptr) {
    notification_ = new Notification(&window_);
    notification_->resize(0, 0);
  }
  notification_->hide();
  notification_->setAccessibleName(sentence);
  notification_->show();
#endif
}

void setTitle(QWidget& window, const QString& title) {
  if (!readsNewNames) return window.setWindowTitle(title);
  const auto ignore = [](QAccessibleEvent*) {};
  QAccessible::UpdateHandler handler = QAccessible::installUpdateHandler(ignore);
  window.setWindowTitle(title);
  QAccessible::installUpdateHandler(handler);
}

void tellNewName(QWidget& widget) {
  if (readsNewNames && widget.hasFocus()) return;
  QAccessibleEvent event(&widget, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

}  // namespace qt
