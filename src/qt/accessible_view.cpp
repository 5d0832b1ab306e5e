#include "qt/accessible_view.h"

#include <algorithm>

#include "platform/cell_pane.h"
#include "qt/convert.h"

namespace qt {
namespace {

using platform::Accessible;

/// One control that the view draws.
class AccessibleItem final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleItem(FormView& view, std::size_t item) : view_(view), item_(item) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&view_);
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QWindow* window() const override { return view_.window()->windowHandle(); }

  QAccessible::Role role() const override {
    switch (accessible().role) {
      case Accessible::Role::button:
        return QAccessible::Button;
      case Accessible::Role::image:
        return QAccessible::Graphic;
      case Accessible::Role::label:
      case Accessible::Role::none:
        break;
    }
    return QAccessible::StaticText;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.disabled = !view_.isItemEnabled(item_);
    state.invisible = !view_.lookOfItem(item_).visible || !view_.isVisible();
    return state;
  }
  QRect rect() const override {
    const QRect place = view_.itemRect(item_);
    return {view_.mapToGlobal(place.topLeft()), place.size()};
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? toQString(accessible().name()) : QString();
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ActionInterface || accessible().actions.empty()) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
  }
  QStringList actionNames() const override {
    QStringList names;
    if (!view_.isItemEnabled(item_) || !view_.lookOfItem(item_).visible) return names;
    for (const Accessible::Action& action : accessible().actions) names += toQString(action.name);
    return names;
  }
  QString localizedActionName(const QString& name) const override { return name; }
  void doAction(const QString& name) override {
    for (const Accessible::Action& action : accessible().actions) {
      if (toQString(action.name) == name) view_.performLater(item_, action.button);
    }
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  const Accessible& accessible() const { return view_.accessibleOf(item_); }

  FormView& view_;
  std::size_t item_;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
  auto* view = dynamic_cast<FormView*>(object);
  return view == nullptr ? nullptr : new AccessibleView(*view);
}

}  // namespace

AccessibleView::AccessibleView(FormView& view)
    : QAccessibleWidget(&view, QAccessible::Client), view_(view) {
  for (std::size_t item = 0; item < view.itemCount(); ++item) {
    if (view.accessibleOf(item).role != Accessible::Role::none) items_.push_back(item);
  }
  ids_.resize(items_.size());
  view.itemChanged = [this](std::size_t item, const Look& before, bool wasEnabled) {
    announce(item, before, wasEnabled);
  };
}

AccessibleView::~AccessibleView() {
  view_.itemChanged = nullptr;
  for (const QAccessible::Id id : ids_) {
    if (id != 0) QAccessible::deleteAccessibleInterface(id);
  }
}

int AccessibleView::childCount() const {
  return static_cast<int>(items_.size()) + QAccessibleWidget::childCount();
}

QAccessibleInterface* AccessibleView::child(int index) const {
  const auto at = static_cast<std::size_t>(index);
  if (at >= items_.size()) {
    return QAccessibleWidget::child(index - static_cast<int>(items_.size()));
  }
  if (ids_[at] == 0) {
    ids_[at] = QAccessible::registerAccessibleInterface(new AccessibleItem(view_, items_[at]));
  }
  return QAccessible::accessibleInterface(ids_[at]);
}

/// Tells clients that a control is not any more what it was.
void AccessibleView::announce(std::size_t item, const Look& before, bool wasEnabled) const {
  const auto found = std::find(items_.begin(), items_.end(), item);
  if (found == items_.end()) return;
  QAccessibleInterface* changed = child(static_cast<int>(found - items_.begin()));
  const Look now = view_.lookOfItem(item);
  if (now.text != before.text) {
    QAccessibleEvent event(changed, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
  }
  QAccessible::State changes;
  changes.disabled = view_.isItemEnabled(item) != wasEnabled;
  changes.invisible = now.visible != before.visible;
  if (changes.disabled || changes.invisible) {
    QAccessibleStateChangeEvent event(changed, changes);
    QAccessible::updateAccessibility(&event);
  }
  if (changes.invisible) {
    QAccessibleEvent event(changed,
                           now.visible ? QAccessible::ObjectShow : QAccessible::ObjectHide);
    QAccessible::updateAccessibility(&event);
  }
}

int AccessibleView::indexOfChild(const QAccessibleInterface* child) const {
  for (std::size_t at = 0; at < ids_.size(); ++at) {
    if (ids_[at] != 0 && QAccessible::accessibleInterface(ids_[at]) == child) {
      return static_cast<int>(at);
    }
  }
  const int index = QAccessibleWidget::indexOfChild(child);
  return index < 0 ? index : index + static_cast<int>(items_.size());
}

QAccessibleInterface* AccessibleView::childAt(int x, int y) const {
  for (int index = childCount() - 1; index >= 0; --index) {
    QAccessibleInterface* found = child(index);
    if (found != nullptr && !found->state().invisible && found->rect().contains(x, y)) return found;
  }
  return nullptr;
}

void installAccessibleViews() {
  QAccessible::installFactory(makeInterface);
}

}  // namespace qt
