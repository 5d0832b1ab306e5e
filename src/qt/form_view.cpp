#include "qt/form_view.h"

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

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

/// Where a key leads in the grid: so many steps to the right, then downwards, each a single one or
/// on to the edge.
struct Way {
  int key = 0;
  bool control = false;
  QPoint across;
  QPoint down;
  bool toEdge = false;
};
constexpr QPoint stay(0, 0);
constexpr QPoint toLeft(-1, 0);
constexpr QPoint toRight(1, 0);
constexpr QPoint upwards(0, -1);
constexpr QPoint downwards(0, 1);
constexpr auto ways = std::to_array<Way>({{Qt::Key_Left, false, toLeft, stay, false},
                                          {Qt::Key_Right, false, toRight, stay, false},
                                          {Qt::Key_Up, false, stay, upwards, false},
                                          {Qt::Key_Down, false, stay, downwards, false},
                                          {Qt::Key_Home, false, toLeft, stay, true},
                                          {Qt::Key_End, false, toRight, stay, true},
                                          {Qt::Key_Home, true, toLeft, upwards, true},
                                          {Qt::Key_End, true, toRight, downwards, true}});

}  // namespace

QRect pixelRect(const platform::Place& place) {
  return pixelRectAt(place, 1, {});
}

FormView::FormView(platform::Form& form, QWidget* parent) : QWidget(parent), form_(form) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFixedSize(pixelRect({0, 0, form.clientWidth, form.clientHeight}).size());
  addAll(form.controls, {});
  connect(qApp, &QApplication::focusChanged, this, &FormView::focusMoved);
}

FormView::~FormView() {
  for (const Item& item : items_) {
    base(item.control).changed = nullptr;
    base(item.control).focusWanted = nullptr;
  }
  // The widgets that are about to go pass the focus on.
  disconnect(qApp, nullptr, this, nullptr);
}

// Drawing

void FormView::addAll(const platform::Controls& controls, const platform::Place& holder) {
  const auto addAtPlace = [this, &holder](auto* control) {
    const auto& [left, top, width, height] = control->place;
    add(control, {holder.left + left, holder.top + top, width, height});
  };
  for (const platform::ControlRef& control : controls) std::visit(addAtPlace, control);
}

void FormView::add(DrawnControl control, const platform::Place& place) {
  base(control).changed = [this, item = items_.size()] { markStale(item); };
  Item& item = items_.emplace_back(Item{control, place, lookOf(control)});
  const platform::Accessible& accessible = base(control).accessible;
  if (accessible.role == platform::Accessible::Role::none) return;
  item.widget = new ControlWidget(control, place, *this);
  // As Tab would, which the toolkit counts as use of the keyboard.
  base(control).focusWanted = [widget = item.widget] { widget->setFocus(Qt::TabFocusReason); };
  if (current_ == nullptr && accessible.inGrid) setCurrent(item.widget);
}

void FormView::add(platform::Frame* frame, const platform::Place& place) {
  add(DrawnControl(frame), place);
  addAll(frame->controls, place);
}

void FormView::add(platform::TextBox* box, const platform::Place& place) {
  (new TextView(*box, this))->setGeometry(pixelRect(place));
}

void FormView::add(platform::CommandButton* button, const platform::Place& place) {
  auto* view = new QPushButton(toQString(button->caption), this);
  view->setFont(toQFont(button->font, 1, logicalDpiY()));
  view->setGeometry(pixelRect(place));
  connect(view, &QPushButton::clicked, this, [button] {
    if (button->click) button->click();
  });
}

/// Changes are gathered until the handler that makes them is done or lets events be processed, so
/// that what changes and changes back is not drawn at all.
void FormView::markStale(std::size_t item) {
  if (stale_.empty()) refreshSoon();
  stale_.push_back(item);
}

void FormView::refreshSoon() {
  QMetaObject::invokeMethod(this, [this] { refreshStale(); }, Qt::QueuedConnection);
}

void FormView::refreshStale() {
  const auto changed = std::exchange(stale_, {});
  for (const std::size_t i : changed) {
    Item& item = items_[i];
    const Look before = std::exchange(item.look, lookOf(item.control));
    if (item.look != before && (item.look.visible || before.visible)) updateItem(i);
    if (item.widget != nullptr && item.look.visible) item.widget->show();
  }
  // Only now, so that the focus can pass to what is shown instead.
  for (const std::size_t i : changed) {
    const Item& item = items_[i];
    if (item.widget != nullptr && !item.look.visible) hide(*item.widget);
  }
  if (yielding_) return;
  for (const Item& item : items_) {
    if (item.widget != nullptr) item.widget->tellClients();
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

void FormView::setYielding(bool yielding) {
  yielding_ = yielding;
  if (!yielding) refreshSoon();
}

void FormView::updateItem(std::size_t item) {
  QRegion region(pixelRect(items_[item].place));
  for (std::size_t i = item + 1; i < items_.size(); ++i) {
    if (items_[i].look.visible) region -= pixelRect(items_[i].place);
  }
  updateRegion(region);
}

void FormView::updateRegion(const QRegion& region) {
  // At a fractional scale the toolkit may cut a pixel off the edges of what is to be repainted.
  const int margin = devicePixelRatioF() == std::floor(devicePixelRatioF()) ? 0 : 1;
  for (const QRect& rect : region) update(rect.adjusted(-margin, -margin, margin, margin));
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
  for (std::size_t i = items_.size(); i-- > 0;) {
    const Item& item = items_[i];
    if (!item.look.visible) continue;
    const QRect rect = pixelRectAt(item.place, scale, origin);
    const QRegion region = left & rect;
    if (region.isEmpty()) continue;
    left -= rect;
    pieces.push_back({&item, rect, region});
  }
  const QPalette colours = boardPalette(palette());
  for (const QRect& rect : left) painter.fillRect(rect, toQColor(platform::buttonFace, colours));
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

// The keys

void FormView::setCurrent(ControlWidget* widget) {
  if (current_ != nullptr) current_->setFocusPolicy(Qt::ClickFocus);
  current_ = widget;
  current_->setFocusPolicy(Qt::StrongFocus);
}

void FormView::focusMoved() {
  auto* focused = dynamic_cast<ControlWidget*>(QApplication::focusWidget());
  if (focused != nullptr && focused->parentWidget() != this) focused = nullptr;
  if (focused != nullptr && focused->accessible().inGrid) setCurrent(focused);
  const ControlWidget* ringed =
      window()->testAttribute(Qt::WA_KeyboardFocusChange) ? focused : nullptr;
  const ControlWidget* before = std::exchange(ringed_, ringed);
  if (ringed == before) return;
  // The ring lies over what covers its control, too.
  for (const ControlWidget* widget : {before, ringed}) {
    if (widget != nullptr) updateRegion(widget->geometry());
  }
}

void FormView::setKeysUsed(bool used) {
  window()->setAttribute(Qt::WA_KeyboardFocusChange, used);
  focusMoved();
}

ControlWidget* FormView::neighbour(const ControlWidget& of, QPoint direction) const {
  // By half a control, so that none is passed over.
  const QPoint step = direction * (of.width() / 2);
  if (step.isNull()) return nullptr;
  for (QPoint at = of.geometry().center() + step; rect().contains(at); at += step) {
    auto* next = dynamic_cast<ControlWidget*>(childAt(at));
    if (next != nullptr && next != &of && next->accessible().inGrid) return next;
  }
  return nullptr;
}

bool FormView::moveFocus(ControlWidget& from, int key, bool control) {
  const auto* way = std::ranges::find_if(
      ways, [&](const Way& it) { return it.key == key && it.control == control; });
  if (way == ways.end()) return false;
  setKeysUsed(true);
  ControlWidget* to = &from;
  if (from.accessible().inGrid) {
    for (const QPoint direction : {way->across, way->down}) {
      for (ControlWidget* next = neighbour(*to, direction); next != nullptr;
           next = way->toEdge ? neighbour(*to, direction) : nullptr) {
        to = next;
      }
    }
  } else if (key == Qt::Key_Up && current_ != nullptr) {
    to = current_;
  }
  if (to != &from) {
    to->setFocus(Qt::TabFocusReason);
  } else if (form_.edgeReached) {
    form_.edgeReached();
  }
  return true;
}

void FormView::mousePressEvent(QMouseEvent* /*event*/) {
  setKeysUsed(false);
}

}  // namespace qt
