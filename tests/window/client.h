#pragma once

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "picture.h"

namespace tessoro::test {

/// An accessibility client, such as a screen reader. It asks for a name or a state only after an
/// event that reports a new one.
class Client {
 public:
  explicit Client(QWidget& view) : window_(QAccessible::queryAccessibleInterface(&view)) {
    listening = this;
    QAccessible::installUpdateHandler(hear);
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
    for (auto* it : controls()) known_[it->object()] = {nameOf(it), isDisabled(it)};
  }
  ~Client() {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(false);
    QAccessible::installUpdateHandler(nullptr);
  }

  QList<QAccessibleInterface*> controls() const {
    QList<QAccessibleInterface*> all;
    for (int i = 0; i < window_->childCount(); ++i) all += window_->child(i);
    return all;
  }
  /// Returns what the client finds at a place of the client area.
  QAccessibleInterface* at(QPoint place) const {
    const QPoint it = window_->rect().topLeft() + place;
    return window_->childAt(it.x(), it.y());
  }
  /// Returns the sentences spoken since the last call.
  QStringList said() { return std::exchange(sentences_, {}); }
  /// Returns the names of the objects that had an event of this type since the last call.
  QStringList notified(QAccessible::Event type) { return std::exchange(events_[type], {}); }
  /// Returns a name or a state of a visible control that the client has wrong; empty if none.
  QString mistake() const {
    for (auto* it : controls()) {
      const auto [name, wasDisabled] = known_.value(it->object());
      if (it->state().invisible) continue;
      if (name != nameOf(it)) return name;
      if (wasDisabled != isDisabled(it)) return name + (wasDisabled ? ", disabled" : ", enabled");
    }
    return "";
  }

 private:
  static inline Client* listening = nullptr;
  QAccessibleInterface* window_;
  QStringList sentences_;
  QMap<int, QStringList> events_;
  QMap<QObject*, std::pair<QString, bool>> known_;  ///< name, and whether it is disabled

  static QString nameOf(QAccessibleInterface* it) { return it->text(QAccessible::Name); }
  static bool isDisabled(QAccessibleInterface* it) { return it->state().disabled; }
  static void hear(QAccessibleEvent* event) {
    // A widget that is being destroyed can no longer be asked.
    if (event->type() == QAccessible::ObjectDestroyed) return;
    if (auto* source = event->accessibleInterface()) listening->hear(*event, source);
  }
  void hear(QAccessibleEvent& event, QAccessibleInterface* source) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (const auto* announcement = dynamic_cast<QAccessibleAnnouncementEvent*>(&event))
      return sentences_.append(announcement->message());
#endif
    const bool isShown = event.type() == QAccessible::ObjectShow;
    if (source->role() == QAccessible::Notification) {
      if (isShown && !nameOf(source).isEmpty()) sentences_ += nameOf(source);
      return;
    }
    const auto* change = dynamic_cast<QAccessibleStateChangeEvent*>(&event);
    if (change != nullptr && !change->changedStates().disabled) return;
    events_[event.type()] += nameOf(source);
    auto& [name, wasDisabled] = known_[source->object()];
    if (change == nullptr) name = nameOf(source);
    if (change != nullptr || isShown) wasDisabled = isDisabled(source);
  }
};

/// The game with a screen reader, which has already spoken the greeting.
struct ClientTest : PictureTest {
  Client client{view};
  const QStringList greeting = said();

  QStringList said() {
    settle();
    return client.said();
  }
  QAccessibleInterface* at(const platform::Control& control) const {
    return client.at(rectOf(control).center());
  }
  void act(const platform::Control& control, const QString& action) const {
    at(control)->actionInterface()->doAction(action);
    settle();
  }
};

}  // namespace tessoro::test
