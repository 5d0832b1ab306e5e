#include "qt/announcer.h"

#include <QAccessibleWidget>

namespace qt {
namespace {

/// Since this version the toolkit has an event for sentences. Its events of new names come with the
/// name since then too, and screen readers read it out where it is that of the focus or the window.
constexpr bool readsNewNames = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);

/// What screen readers read out whenever it is shown.
class Notification final : public QWidget {
 public:
  using QWidget::QWidget;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
  auto* notification = dynamic_cast<Notification*>(object);
  if (notification == nullptr) return nullptr;
  return new QAccessibleWidget(notification, QAccessible::Notification);
}

}  // namespace

Announcer::Announcer(QWidget& window) : window_(window) {
  QAccessible::installActivationObserver(this);
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

void Announcer::windowActivated() {
  if (window_.isActiveWindow()) speakLater();
}

void Announcer::speakLater() {
  QMetaObject::invokeMethod(&window_, [this] { speak(); }, Qt::QueuedConnection);
}

void Announcer::accessibilityActiveChanged(bool /*active*/) {
  windowActivated();
}

void Announcer::tellFocus() const {
  QWidget* focused = window_.focusWidget();
  if (sentence_.isEmpty() || focused == nullptr) return;
  QAccessibleEvent event(focused, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

void Announcer::introduce(const QString& text) {
  if (readsNewNames) return announce(text);
  window_.setAccessibleDescription(text);
}

void Announcer::speak() {
  if (sentence_.isEmpty() || !QAccessible::isActive()) return;
  const QString sentence = takeSentence();
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
  const auto ignore = [](QAccessibleEvent*) {};
  if (!readsNewNames) return window.setWindowTitle(title);
  QAccessible::UpdateHandler handler = QAccessible::installUpdateHandler(ignore);
  window.setWindowTitle(title);
  QAccessible::installUpdateHandler(handler);
}

void tellNewName(QWidget& widget) {
  if (readsNewNames && widget.hasFocus()) return;
  QAccessibleEvent event(&widget, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

void installNotifications() {
  QAccessible::installFactory(makeInterface);
}

}  // namespace qt
