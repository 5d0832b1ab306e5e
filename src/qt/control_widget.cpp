#include "qt/control_widget.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <variant>

#include "platform/cell_pane.h"
#include "qt/announcer.h"
#include "qt/convert.h"
#include "qt/form_view.h"
#include "qt/modal.h"

namespace qt {
namespace {

using platform::Accessible;
using platform::CellPane;
using platform::MouseButton;

/// Converts a button: the first three have the same numbers in Qt, all others are `other`.
MouseButton toMouseButton(Qt::MouseButton button) {
  return static_cast<MouseButton>(std::min<int>(button, static_cast<int>(MouseButton::other)));
}

std::int16_t shiftState(Qt::KeyboardModifiers modifiers) {
  return static_cast<std::int16_t>((modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
                                   (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
                                   (modifiers.testFlag(Qt::AltModifier) ? 4 : 0));
}

/// The keys that act like a press of a mouse button.
constexpr auto pressingKeys =
    std::to_array<std::pair<int, MouseButton>>({{Qt::Key_Space, MouseButton::left},
                                                {Qt::Key_Return, MouseButton::left},
                                                {Qt::Key_Enter, MouseButton::left},
                                                {Qt::Key_Backspace, MouseButton::right}});

QAccessible::Role toRole(Accessible::Role role) {
  return role == Accessible::Role::button  ? QAccessible::Button
         : role == Accessible::Role::image ? QAccessible::Graphic
                                           : QAccessible::StaticText;
}

/// The control as accessibility clients see it.
class AccessibleControl final : public QAccessibleWidget {
 public:
  explicit AccessibleControl(ControlWidget& control)
      : QAccessibleWidget(&control, toRole(control.accessible().role)), control_(control) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.disabled = control_.isDisabled();
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? toQString(control_.accessible().name()) : QString();
  }

  QStringList actionNames() const override {
    QStringList names;
    if (!control_.isDisabled() && control_.isVisible()) {
      for (const Accessible::Action& action : control_.accessible().actions) {
        names += toQString(action.name);
      }
    }
    return names + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& name) override {
    for (const Accessible::Action& action : control_.accessible().actions) {
      if (toQString(action.name) == name) return control_.pressLater(action.button);
    }
    QAccessibleWidget::doAction(name);
  }

 private:
  ControlWidget& control_;
};

QAccessibleInterface* controlInterface(const QString& /*className*/, QObject* object) {
  auto* control = dynamic_cast<ControlWidget*>(object);
  return control == nullptr ? nullptr : new AccessibleControl(*control);
}

}  // namespace

ControlWidget::ControlWidget(DrawnControl control, const platform::Place& place, FormView& view)
    : QWidget(&view),
      control_(control),
      cell_(std::holds_alternative<CellPane*>(control) ? std::get<CellPane*>(control) : nullptr),
      place_(place),
      view_(view),
      name_(accessible().name()),
      disabled_(isDisabled()) {
  QAccessible::installFactory(controlInterface);  // has no effect the second time
  // Only the view draws, even when this widget is shown or hidden.
  setUpdatesEnabled(false);
  setGeometry(view.rectOf(place));
  setVisible(base(control).Visible());
  if (accessible().inGrid) {
    setFocusPolicy(Qt::ClickFocus);  // the view lets Tab reach one widget of the grid
  } else if (accessible().role == Accessible::Role::button) {
    setFocusPolicy(Qt::StrongFocus);
  }
}

bool ControlWidget::isDisabled() const {
  return cell_ != nullptr && !cell_->enabled();
}

void ControlWidget::notifyClients() {
  if (accessible().name() != name_) {
    name_ = accessible().name();
    notifyNewName(*this);
  }
  if (isDisabled() != disabled_) {
    disabled_ = isDisabled();
    QAccessible::State changes;
    changes.disabled = true;
    QAccessibleStateChangeEvent event(this, changes);
    QAccessible::updateAccessibility(&event);
  }
}

void ControlWidget::press(MouseButton button) {
  if (cell_ == nullptr) return;
  cell_->press({.button = button});
  cell_->release(button, true);
}

void ControlWidget::pressLater(MouseButton button) {
  const auto perform = [this, button] {
    if (!isBlocked(*this)) press(button);
  };
  QMetaObject::invokeMethod(this, perform, Qt::QueuedConnection);
}

void ControlWidget::mousePressEvent(QMouseEvent* event) {
  view_.setKeysUsed(false);
  // While one button is down, presses of the others arrive here wherever the mouse is.
  if (cell_ == nullptr || !rect().contains(event->position().toPoint())) return;
  cell_->press({toMouseButton(event->button()), shiftState(event->modifiers()),
                event->position().x() * view_.twipsPerPixel(),
                event->position().y() * view_.twipsPerPixel()});
}

void ControlWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (cell_ == nullptr) return;
  cell_->release(toMouseButton(event->button()), rect().contains(event->position().toPoint()));
}

void ControlWidget::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers =
      event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  const bool plain = modifiers == Qt::NoModifier;
  const bool ctrl = modifiers == Qt::ControlModifier;
  const auto* pressing =
      std::ranges::find(pressingKeys, event->key(), &std::pair<int, MouseButton>::first);
  if (plain && pressing != pressingKeys.end()) {
    view_.setKeysUsed(true);
    press(pressing->second);
  } else if (plain && type(event->text(), event->modifiers().testFlag(Qt::ShiftModifier))) {
    view_.setKeysUsed(true);
  } else if (!(plain || ctrl) || !view_.moveFocus(*this, event->key(), ctrl)) {
    event->ignore();
  }
}

bool ControlWidget::type(const QString& text, bool shift) {
  // No character beyond ASCII has a meaning.
  const char character = text.size() == 1 ? text.front().toLower().toLatin1() : '\0';
  return character != '\0' && cell_ != nullptr && cell_->typed && cell_->typed(character, shift);
}

}  // namespace qt
