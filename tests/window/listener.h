#pragma once

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "picture.h"

namespace tessoro::test {

/// The game as it is met through a screen reader and the keys.
struct ListeningTest : PictureTest {
  /// What clients have been told: events, as "Focus NAME", and sentences, as "say SENTENCE".
  static inline QStringList told;
  /// The names as a client knows them that has not asked again since.
  static inline std::map<QObject*, QString> knownNames;
  static constexpr bool announces = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);
  QAccessibleInterface* all = QAccessible::queryAccessibleInterface(&view);

  ListeningTest() {
    setListening(true);
    QAccessible::installUpdateHandler(hear);
    EXPECT_TRUE(heard("say").endsWith("Welcome")) << "said before there was a window";
    for (int i = 0; i < all->childCount(); ++i)
      knownNames[all->child(i)->object()] = all->child(i)->text(QAccessible::Name);
  }
  ~ListeningTest() override {
    QAccessible::installUpdateHandler(nullptr);
    setListening(false);
  }
  static void setListening(bool listening) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(listening);
  }
  static void hear(QAccessibleEvent* event) {
    // Nobody asks a widget for anything while it is destroyed.
    const auto* source =
        event->type() == QAccessible::ObjectDestroyed ? nullptr : event->accessibleInterface();
    if (source == nullptr) return;
    QString kind = qAccessibleEventString(event->type());
    QString text = source->text(QAccessible::Name);
    if (source->role() == QAccessible::Notification) kind = kind == "ObjectShow" ? "say" : "";
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (auto* announcement = dynamic_cast<QAccessibleAnnouncementEvent*>(event)) {
      kind = "say";
      text = announcement->message();
    }
#endif
    told.append(kind + " " + text);
    if (QStringList{"ObjectShow", "NameChanged", "Focus"}.contains(kind))
      knownNames[source->object()] = text;
  }
  /// What has been told since the last call, of the kinds that begin so.
  static QStringList heard(const QString& kind) {
    settle();
    QStringList matching;
    for (const QString& it : std::exchange(told, {}))
      if (it.startsWith(kind)) matching += it.mid(kind.size() + 1);
    return matching;
  }
  /// What is found at the middle of a control.
  QAccessibleInterface* at(const platform::Control& control) const {
    const QPoint middle = view.mapToGlobal(middleOf(control));
    return all->childAt(middle.x(), middle.y());
  }
  void act(const platform::Control& control, const QString& action) const {
    at(control)->actionInterface()->doAction(action);
    settle();
  }
};

}  // namespace tessoro::test
