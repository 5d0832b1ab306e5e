#include "qt/form_view.h"

#include <QAccessible>
#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <ranges>
#include <utility>

#include "platform/cell_pane.h"
#include "qt/announcer.h"
#include "qt/control_widget.h"
#include "qt/convert.h"
#include "qt/text_view.h"

namespace qt {
namespace {

/// The rectangle in the pixels of a grid in which the client area begins at `origin` and `scale`
/// of them make a device-independent one.
QRect pixelRectAt(const platform::Place& place, double scale, QPoint origin) {
  const auto edge = [&](int twips) {
    return static_cast<int>(std::lround(twips / twipsPerPixel * scale));
  };
  const QPoint topLeft(edge(place.left), edge(place.top));
  const QPoint bottomRight(edge(place.left + place.width), edge(place.top + place.height));
  return {origin + topLeft, origin + bottomRight - QPoint(1, 1)};
}

QRegion pixelRegion(const QRegion& region, const QTransform& toPixels) {
  QRegion result;
  for (const QRect& rect : region) result += toPixels.mapRect(QRectF(rect)).toAlignedRect();
  return result;
}

bool isWhole(double scale) {
  return scale == std::floor(scale);
}

/// The steps to the right and downwards that an arrow key goes; none for other keys.
QPoint directionOf(int key) {
  const auto is = [key](Qt::Key arrow) { return key == arrow ? 1 : 0; };
  return {is(Qt::Key_Right) - is(Qt::Key_Left), is(Qt::Key_Down) - is(Qt::Key_Up)};
}

}  // namespace

QRect pixelRect(const platform::Place& place) {
  return pixelRectAt(place, 1, {});
}

FormView::FormView(platform::Form& form, QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFixedSize(pixelRect({0, 0, form.clientWidth, form.clientHeight}).size());
  addAll(form.controls, {});
  QAccessible::installActivationObserver(this);
}

// A variant of pointers always has a value. NOLINTNEXTLINE(bugprone-exception-escape)
FormView::~FormView() {
  for (const Item& item : items_) onChange(item.control, nullptr);
  QAccessible::removeActivationObserver(this);
  // Now, while the view is whole: a widget that goes passes the focus on, and tells the view.
  items_.clear();
  qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
}

void FormView::addAll(const platform::Controls& controls, const platform::Place& holder) {
  const auto addAtPlace = [&](auto* control) {
    const platform::Place& place = control->place;
    this->add(*control,
              {holder.left + place.left, holder.top + place.top, place.width, place.height});
  };
  for (const platform::ControlRef& control : controls) std::visit(addAtPlace, control);
}

template <typename Control>
void FormView::add(Control& control, const platform::Place& place) {
  const std::size_t index = items_.size();
  Item& item = items_.emplace_back(Item{&control, place, lookOf(&control)});
  onChange(&control, [this, index] { markStale(index); });
  if (accessibleOf(&control).role == platform::Accessible::Role::none) return;
  item.widget = new ControlWidget(&control, place, *this);
  item.widget->setVisible(item.look.visible);
  item.enabled = takesInput(&control);
  if (current_ == nullptr && accessibleOf(&control).inGrid) setCurrent(item.widget);
}

void FormView::add(platform::Frame& frame, const platform::Place& place) {
  add<platform::Frame>(frame, place);
  addAll(frame.controls, place);
}

void FormView::add(platform::TextBox& box, const platform::Place& place) {
  auto* view = new TextView(box, this);
  view->setGeometry(pixelRect(place));
}

void FormView::add(platform::CommandButton& button, const platform::Place& place) {
  auto* view = new QPushButton(toQString(button.caption), this);
  view->setFont(toQFont(button.font, 1, logicalDpiY()));
  view->setGeometry(pixelRect(place));
  connect(view, &QPushButton::clicked, this, [&button] {
    if (button.click) button.click();
  });
}

/// Changes are gathered until the handler that makes them is done, so that what changes and changes
/// back is not drawn at all.
void FormView::markStale(std::size_t item) {
  if (stale_.empty()) {
    QMetaObject::invokeMethod(this, [this] { refreshStale(); }, Qt::QueuedConnection);
  }
  stale_.push_back(item);
}

void FormView::refreshStale() {
  const auto changed = std::exchange(stale_, {});
  for (const std::size_t i : changed) {
    Item& item = items_[i];
    const Look before = std::exchange(item.look, lookOf(item.control));
    if (item.look != before && (item.look.visible || before.visible)) updatePlace(item.place, i);
    if (item.widget != nullptr && item.look.visible) item.widget->show();
  }
  // Only now, so that the focus can pass to what is shown instead.
  for (const std::size_t i : changed) {
    const Item& item = items_[i];
    if (item.widget == nullptr) continue;
    if (!item.look.visible) hide(*item.widget);
  }
  for (Item& item : items_) {
    if (item.widget != nullptr) tellClients(item);
  }
}

/// A control that has the focus leaves it to the one that is shown in its place.
void FormView::hide(ControlWidget& widget) {
  if (window()->focusWidget() == &widget) {
    for (const Item& item : items_) {
      if (item.widget == nullptr || item.widget == &widget || !item.look.visible) continue;
      if (item.widget->geometry() == widget.geometry()) item.widget->setFocus();
    }
  }
  widget.hide();
}

/// The toolkit tells clients of assistive technology what is shown, hidden or focused; names and
/// states are told here.
void FormView::tellClients(Item& item) {
  const bool wasEnabled = std::exchange(item.enabled, item.widget->takesInput());
  if (!QAccessible::isActive()) return;
  const std::string before = std::exchange(item.name, item.widget->accessible().name());
  if (item.name != before) tellNewName(*item.widget);
  if (item.enabled != wasEnabled) {
    QAccessible::State changes;
    changes.disabled = true;
    QAccessibleStateChangeEvent event(item.widget, changes);
    QAccessible::updateAccessibility(&event);
  }
}

/// From now on clients are told of names that are not these any more.
void FormView::accessibilityActiveChanged(bool /*active*/) {
  for (Item& item : items_) {
    if (item.widget != nullptr) item.name = item.widget->accessible().name();
  }
}

void FormView::setCurrent(ControlWidget* widget) {
  if (current_ != nullptr) current_->setFocusPolicy(Qt::ClickFocus);
  current_ = widget;
  current_->setFocusPolicy(Qt::StrongFocus);
}

void FormView::focusMoved() {
  if (items_.empty()) return;  // as the view ends
  auto* focused = dynamic_cast<ControlWidget*>(QApplication::focusWidget());
  if (focused != nullptr && focused->parentWidget() != this) focused = nullptr;
  if (focused != nullptr && focused->accessible().inGrid && focused != current_) {
    setCurrent(focused);
  }
  const ControlWidget* ringed =
      window()->testAttribute(Qt::WA_KeyboardFocusChange) ? focused : nullptr;
  const ControlWidget* before = std::exchange(ringed_, ringed);
  if (ringed == before) return;
  for (const ControlWidget* widget : {before, ringed}) {
    if (widget != nullptr) updatePlace(widget->place(), items_.size());
  }
}

void FormView::setKeysUsed(bool used) {
  window()->setAttribute(Qt::WA_KeyboardFocusChange, used);
  focusMoved();
}

void FormView::updatePlace(const platform::Place& place, std::size_t above) {
  QRegion region(pixelRect(place));
  for (std::size_t i = above + 1; i < items_.size(); ++i) {
    if (items_[i].look.visible) region -= pixelRect(items_[i].place);
  }
  // At a fractional scale the toolkit may cut a pixel off the edges of what is to be repainted.
  const int margin = isWhole(devicePixelRatioF()) ? 0 : 1;
  for (const QRect& rect : region) update(rect.adjusted(-margin, -margin, margin, margin));
}

void FormView::focusFirst() {
  for (QWidget* widget : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if ((widget->focusPolicy() & Qt::TabFocus) != 0) return widget->setFocus();
  }
}

bool FormView::moveFocus(const ControlWidget& from, int key) {
  const QPoint direction = directionOf(key);
  if (direction.isNull()) return false;
  setKeysUsed(true);
  // Of the controls in the same row or column, the nearest in this direction.
  ControlWidget* nearest = nullptr;
  int least = 0;
  for (const Item& item : items_) {
    if (item.widget == nullptr || !item.look.visible || !item.widget->accessible().inGrid) continue;
    const QPoint way = item.widget->geometry().center() - from.geometry().center();
    const int forward = QPoint::dotProduct(way, direction);
    const int aside = std::abs(way.x() * direction.y()) + std::abs(way.y() * direction.x());
    const bool aligned = 2 * aside < (direction.x() != 0 ? from.height() : from.width());
    if (forward <= 0 || !aligned || (nearest != nullptr && forward >= least)) continue;
    nearest = item.widget;
    least = forward;
  }
  // For this reason the toolkit counts it as use of the keyboard.
  if (nearest != nullptr) nearest->setFocus(Qt::TabFocusReason);
  return true;
}

void FormView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QTransform toPixels = painter.deviceTransform();
  const double scale = toPixels.m11();
  const QPoint origin(qRound(toPixels.dx()), qRound(toPixels.dy()));
  painter.setTransform(toPixels.inverted(), true);

  // From front to back each control gets the pixels that none before it has taken, so that every
  // pixel is drawn once and what is wholly covered not at all.
  struct Piece {
    const Item* item;
    QRect rect;
    QRegion region;
  };
  std::vector<Piece> pieces;
  const QRegion all = pixelRegion(event->region(), toPixels);
  QRegion left = all;
  for (const Item& item : std::views::reverse(items_)) {
    if (!item.look.visible) continue;
    const QRect rect = pixelRectAt(item.place, scale, origin);
    const QRegion region = left & rect;
    if (region.isEmpty()) continue;
    left -= rect;
    pieces.push_back({&item, rect, region});
  }
  const QPalette colours = boardPalette(palette());
  painter.setClipRegion(left);
  painter.fillRect(left.boundingRect(), toQColor(platform::buttonFace, colours));
  for (const Piece& piece : pieces) {
    painter.setClipRegion(piece.region);
    drawControl(piece.item->control, piece.item->look,
                {painter, piece.rect, scale, colours, static_cast<double>(logicalDpiY())});
    ++drawnControls_;
  }
  if (ringed_ != nullptr) {
    painter.setClipRegion(all);
    drawRing({painter, pixelRectAt(ringed_->place(), scale, origin), scale, colours});
  }
}

void FormView::mousePressEvent(QMouseEvent* /*event*/) {
  setKeysUsed(false);
}

}  // namespace qt
