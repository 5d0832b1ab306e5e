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

/// Converts a place to pixels, `scale` per 15 twips, with the client area's top left at `origin`.
QRect pixelRect(const platform::Place& place, double scale, QPoint origin = {}) {
  const auto edge = [&](int twips) {
    return static_cast<int>(std::lround(twips / unzoomedTwipsPerPixel * scale));
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

/// Focus move of a key in the grid: first across, then down, each by one step or to the edge.
struct FocusMove {
  int key = 0;
  bool ctrl = false;
  QPoint across;
  QPoint down;
  bool toEdge = false;
};
constexpr QPoint stay(0, 0);
constexpr QPoint toLeft(-1, 0);
constexpr QPoint toRight(1, 0);
constexpr QPoint upwards(0, -1);
constexpr QPoint downwards(0, 1);
constexpr auto focusMoves =
    std::to_array<FocusMove>({{Qt::Key_Left, false, toLeft, stay, false},
                              {Qt::Key_Right, false, toRight, stay, false},
                              {Qt::Key_Up, false, stay, upwards, false},
                              {Qt::Key_Down, false, stay, downwards, false},
                              {Qt::Key_Home, false, toLeft, stay, true},
                              {Qt::Key_End, false, toRight, stay, true},
                              {Qt::Key_Home, true, toLeft, upwards, true},
                              {Qt::Key_End, true, toRight, downwards, true}});

}  // namespace

FormView::FormView(platform::Form& form, double zoom, QWidget* parent)
    : QWidget(parent), form_(form), zoom_(zoom) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  resize(sizeHint());
  addAll(form.controls, {});
  connect(qApp, &QApplication::focusChanged, this, &FormView::moveRing);
}

FormView::~FormView() {
  for (const Item& item : items_) {
    base(item.control).changed = nullptr;
    base(item.control).focusWanted = nullptr;
  }
  // Destroying the widgets moves the focus, which would call moveRing().
  disconnect(qApp, nullptr, this, nullptr);
}

// Drawing

QRect FormView::rectOf(const platform::Place& place) const {
  return pixelRect(place, zoom_);
}

QSize FormView::sizeHint() const {
  return rectOf({0, 0, form_.clientWidth, form_.clientHeight}).size();
}

void FormView::setZoom(double zoom) {
  zoom_ = zoom;
  for (const Item& item : items_) {
    if (item.widget != nullptr) item.widget->setGeometry(rectOf(item.place));
  }
  updateGeometry();
  update();
}

void FormView::addAll(const platform::Controls& controls, const platform::Place& holder) {
  const auto addAtPlace = [this, &holder](auto* control) {
    const auto& [left, top, width, height] = control->place;
    add(control, {holder.left + left, holder.top + top, width, height});
  };
  for (const platform::ControlRef& control : controls) std::visit(addAtPlace, control);
}

void FormView::add(DrawnControl control, const platform::Place& place) {
  base(control).changed = [this] { refreshSoon(); };
  Item& item = items_.emplace_back(Item{control, place, lookOf(control)});
  const platform::Accessible& accessible = base(control).accessible;
  if (accessible.role == platform::Accessible::Role::none) return;
  item.widget = new ControlWidget(control, place, *this);
  base(control).focusWanted = [widget = item.widget] { widget->setFocus(Qt::OtherFocusReason); };
  if (tabStop_ == nullptr && accessible.inGrid) setTabStop(item.widget);
}

void FormView::add(platform::Frame* frame, const platform::Place& place) {
  add(DrawnControl(frame), place);
  addAll(frame->controls, place);
}

void FormView::add(platform::TextBox* box, const platform::Place& place) {
  (new TextView(*box, zoom_, this))->setGeometry(rectOf(place));
}

void FormView::add(platform::CommandButton* button, const platform::Place& place) {
  auto* view = new QPushButton(toQString(button->caption), this);
  view->setFont(toQFont(button->font, zoom_, logicalDpiY()));
  view->setGeometry(rectOf(place));
  connect(view, &QPushButton::clicked, this, [button] {
    if (button->click) button->click();
  });
}

/// Queues the refresh, so that a change that the running handler undoes is not drawn.
void FormView::refreshSoon() {
  if (std::exchange(refreshScheduled_, true)) return;
  QMetaObject::invokeMethod(this, [this] { refresh(); }, Qt::QueuedConnection);
}

void FormView::refresh() {
  refreshScheduled_ = false;
  for (Item& item : items_) {
    const Look before = std::exchange(item.look, lookOf(item.control));
    if (item.look != before) repaintSoon(item.place);
    if (item.widget != nullptr && item.look.visible) item.widget->show();
  }
  // Hide controls last, so that the focus can move to the control shown instead.
  for (const Item& item : items_) {
    if (item.widget != nullptr && !item.look.visible) hideWidget(*item.widget);
  }
  if (yielding_) return;
  for (const Item& item : items_) {
    if (item.widget != nullptr) item.widget->notifyClients();
  }
}

/// Hides the widget. The control shown in its place, if any, gets its focus.
void FormView::hideWidget(ControlWidget& widget) {
  if (window()->focusWidget() == &widget) {
    for (const Item& item : items_) {
      if (item.widget == nullptr || item.widget == &widget || !item.look.visible) continue;
      if (item.widget->geometry() == widget.geometry()) item.widget->setFocus();
    }
  }
  // hide() calls focusNextPrevChild(), which records that the keyboard is in use.
  const bool keysUsed = keysUsed_;
  widget.hide();
  setKeysUsed(keysUsed);
}

void FormView::setYielding(bool yielding) {
  yielding_ = yielding;
  if (!yielding) refreshSoon();
}

void FormView::repaintSoon(const platform::Place& place) {
  // At a fractional scale the edges that are drawn may lie a pixel further out.
  const auto isWhole = [](double scale) { return scale == std::floor(scale); };
  const int margin = isWhole(zoom_) && isWhole(devicePixelRatioF()) ? 0 : 1;
  update(rectOf(place).adjusted(-margin, -margin, margin, margin));
}

void FormView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QTransform toPixels = painter.deviceTransform();
  const double scale = toPixels.m11() * zoom_;
  const QPoint origin(qRound(toPixels.dx()), qRound(toPixels.dy()));
  painter.setTransform(toPixels.inverted(), true);

  const QPalette colours = boardPalette(palette());
  // One rectangle at a time, because clipping to several blends the edges of letters differently.
  for (const QRect& part : pixelRegion(event->region(), toPixels)) {
    painter.setClipRect(part);
    painter.fillRect(part, toQColor(platform::buttonFace, colours));
    for (const Item& item : items_) {
      const QRect rect = pixelRect(item.place, scale, origin);
      if (!item.look.visible || !part.intersects(rect)) continue;
      drawControl(item.control, item.look,
                  {painter, rect, scale, colours, static_cast<double>(logicalDpiY())});
      ++drawnControls_;
    }
    if (ringed_ != nullptr) {
      drawRing({painter, pixelRect(ringed_->place(), scale, origin), scale, colours});
    }
  }
}

// The keys

void FormView::setTabStop(ControlWidget* widget) {
  if (tabStop_ != nullptr) tabStop_->setFocusPolicy(Qt::ClickFocus);
  tabStop_ = widget;
  tabStop_->setFocusPolicy(Qt::StrongFocus);
}

void FormView::moveRing() {
  auto* focused = dynamic_cast<ControlWidget*>(QApplication::focusWidget());
  if (focused != nullptr && focused->parentWidget() != this) focused = nullptr;
  if (focused != nullptr && focused->accessible().inGrid) setTabStop(focused);
  const ControlWidget* before = std::exchange(ringed_, keysUsed_ ? focused : nullptr);
  if (ringed_ == before) return;
  for (const ControlWidget* widget : {before, ringed_}) {
    if (widget != nullptr) repaintSoon(widget->place());
  }
}

void FormView::setKeysUsed(bool used) {
  keysUsed_ = used;
  moveRing();
}

bool FormView::focusNextPrevChild(bool next) {
  setKeysUsed(true);
  return QWidget::focusNextPrevChild(next);
}

ControlWidget* FormView::neighbour(const ControlWidget& of, QPoint direction) const {
  // Steps of half a control's width cannot skip a neighbour.
  const QPoint step = direction * (of.width() / 2);
  if (step.isNull()) return nullptr;
  for (QPoint at = of.geometry().center() + step; rect().contains(at); at += step) {
    auto* next = dynamic_cast<ControlWidget*>(childAt(at));
    if (next != nullptr && next != &of && next->accessible().inGrid) return next;
  }
  return nullptr;
}

bool FormView::moveFocus(ControlWidget& from, int key, bool ctrl) {
  const auto* found = std::ranges::find_if(
      focusMoves, [&](const FocusMove& it) { return it.key == key && it.ctrl == ctrl; });
  if (found == focusMoves.end()) return false;
  setKeysUsed(true);
  ControlWidget* to = &from;
  if (from.accessible().inGrid) {
    for (const QPoint direction : {found->across, found->down}) {
      for (ControlWidget* next = neighbour(*to, direction); next != nullptr;
           next = found->toEdge ? neighbour(*to, direction) : nullptr) {
        to = next;
      }
    }
  } else if (key == Qt::Key_Up && tabStop_ != nullptr) {
    to = tabStop_;
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
