#include "qt/form_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/cell_pane.h"
#include "qt/convert.h"
#include "qt/modal.h"
#include "qt/text_view.h"

namespace qt {
namespace {

/// The rectangle in the pixels of a grid in which the client area begins at `origin` and `scale`
/// of them make a device-independent one.
QRect pixelRect(const platform::Place& place, double scale, QPoint origin) {
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

platform::MouseButton toMouseButton(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return platform::MouseButton::left;
    case Qt::RightButton:
      return platform::MouseButton::right;
    case Qt::MiddleButton:
      return platform::MouseButton::middle;
    default:
      return platform::MouseButton::other;
  }
}

std::int16_t shiftState(Qt::KeyboardModifiers modifiers) {
  return static_cast<std::int16_t>((modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
                                   (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
                                   (modifiers.testFlag(Qt::AltModifier) ? 4 : 0));
}

}  // namespace

FormView::FormView(platform::Form& form, QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFixedSize(static_cast<int>(std::lround(form.clientWidth / twipsPerPixel)),
               static_cast<int>(std::lround(form.clientHeight / twipsPerPixel)));
  addAll(form.controls, {});
}

FormView::~FormView() {
  for (const Item& item : items_) onChange(item.control, nullptr);
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
  items_.push_back({&control, place, lookOf(&control), takesInput(&control)});
  onChange(&control, [this, index] { markStale(index); });
}

void FormView::add(platform::Frame& frame, const platform::Place& place) {
  add<platform::Frame>(frame, place);
  addAll(frame.controls, place);
}

void FormView::add(platform::TextBox& box, const platform::Place& place) {
  auto* view = new TextView(box, this);
  view->setGeometry(pixelRect(place, 1, {}));
}

void FormView::add(platform::CommandButton& button, const platform::Place& place) {
  auto* view = new QPushButton(toQString(button.caption), this);
  view->setFont(toQFont(button.font, 1, logicalDpiY()));
  view->setGeometry(pixelRect(place, 1, {}));
  connect(view, &QPushButton::clicked, this, [&button] {
    if (button.click) button.click();
  });
}

/// Changes are gathered until the handler that makes them is done, so that what changes and changes
/// back is not drawn at all.
void FormView::markStale(std::size_t item) {
  items_[item].stale = true;
  if (anyStale_) return;
  anyStale_ = true;
  QMetaObject::invokeMethod(
      this, [this] { refreshStale(); }, Qt::QueuedConnection);
}

void FormView::refreshStale() {
  anyStale_ = false;
  // At a fractional scale the toolkit may cut a pixel off the edges of what is to be repainted.
  const int margin = isWhole(devicePixelRatioF()) ? 0 : 1;
  for (std::size_t i = 0; i < items_.size(); ++i) {
    Item& item = items_[i];
    if (!item.stale) continue;
    item.stale = false;
    const Look before = std::exchange(item.look, lookOf(item.control));
    const bool wasEnabled = std::exchange(item.enabled, takesInput(item.control));
    if (itemChanged) itemChanged(i, before, wasEnabled);
    if (item.look == before || (!item.look.visible && !before.visible)) continue;
    for (const QRect& rect : uncovered(i)) {
      update(rect.adjusted(-margin, -margin, margin, margin));
    }
  }
}

const platform::Accessible& FormView::accessibleOf(std::size_t item) const {
  return qt::accessibleOf(items_[item].control);
}

Look FormView::lookOfItem(std::size_t item) const {
  return lookOf(items_[item].control);
}

bool FormView::isItemEnabled(std::size_t item) const {
  return takesInput(items_[item].control);
}

QRect FormView::itemRect(std::size_t item) const {
  return pixelRect(items_[item].place, 1, {});
}

void FormView::performLater(std::size_t item, platform::MouseButton button) {
  auto* const* cell = std::get_if<platform::CellPane*>(&items_[item].control);
  if (cell == nullptr) return;
  const auto perform = [this, cell = *cell, button] {
    if (isBlocked(*this)) return;
    cell->press({.button = button});
    cell->release(button, true);
  };
  QMetaObject::invokeMethod(this, perform, Qt::QueuedConnection);
}

QRegion FormView::uncovered(std::size_t item) const {
  QRegion region(itemRect(item));
  for (std::size_t i = item + 1; i < items_.size(); ++i) {
    if (items_[i].look.visible) region -= itemRect(i);
  }
  return region;
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
  QRegion left = pixelRegion(event->region(), toPixels);
  for (auto at = items_.crbegin(); at != items_.crend(); ++at) {
    const Item& item = *at;
    if (!item.look.visible) continue;
    const QRect rect = pixelRect(item.place, scale, origin);
    const QRegion region = left & rect;
    if (region.isEmpty()) continue;
    left -= rect;
    pieces.push_back({&item, rect, region});
  }
  painter.setClipRegion(left);
  painter.fillRect(left.boundingRect(), toQColor(platform::buttonFace, palette()));
  for (const Piece& piece : pieces) {
    painter.setClipRegion(piece.region);
    drawControl(piece.item->control, piece.item->look,
                {painter, piece.rect, scale, palette(), static_cast<double>(logicalDpiY())});
    ++drawnControls_;
  }
}

FormView::Item* FormView::itemAt(QPointF point) {
  const auto inside = [](double at, int start, int size) {
    const double twips = at * twipsPerPixel;
    return twips >= start && twips < start + size;
  };
  const auto item = std::find_if(items_.rbegin(), items_.rend(), [&](const Item& it) {
    return lookOf(it.control).visible && inside(point.x(), it.place.left, it.place.width) &&
           inside(point.y(), it.place.top, it.place.height);
  });
  return item == items_.rend() ? nullptr : &*item;
}

void FormView::mousePressEvent(QMouseEvent* event) {
  const Item* item = itemAt(event->position());
  auto* const* cell = item == nullptr ? nullptr : std::get_if<platform::CellPane*>(&item->control);
  const bool first = event->buttons() == event->button();
  if (first) pressed_ = cell == nullptr ? nullptr : *cell;
  if (cell == nullptr) return;
  (*cell)->press({toMouseButton(event->button()), shiftState(event->modifiers()),
                  event->position().x() * twipsPerPixel - item->place.left,
                  event->position().y() * twipsPerPixel - item->place.top});
}

void FormView::mouseReleaseEvent(QMouseEvent* event) {
  if (pressed_ == nullptr) return;
  const Item* item = itemAt(event->position());
  const bool inside = item != nullptr && item->control == DrawnControl(pressed_);
  platform::CellPane* cell = pressed_;
  if (event->buttons() == Qt::NoButton) pressed_ = nullptr;
  cell->release(toMouseButton(event->button()), inside);
}

void FormView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) update();
  QWidget::changeEvent(event);
}

}  // namespace qt
