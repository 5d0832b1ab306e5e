#pragma once

#include <QPainter>
#include <string>
#include <variant>

#include "platform/cell_pane.h"
#include "platform/control.h"

namespace qt {

/// The controls that a form's view draws itself; the others are Qt widgets.
using DrawnControl =
    std::variant<platform::CellPane*, platform::Label*, platform::PictureBox*, platform::Frame*>;

inline platform::Control& base(const DrawnControl& control) {
  return std::visit([](auto* it) -> platform::Control& { return *it; }, control);
}

/// Snapshot of the properties that decide how a control is drawn.
struct Look {
  bool visible = true;
  bool greyed = false;
  std::string text = {};
  platform::Colour backcolor = {};
  platform::Colour forecolor = {};
  bool operator==(const Look&) const = default;
};

/// Target of drawing one control, in pixels of the screen.
struct Canvas {
  QPainter& painter;
  QRect rect;        ///< the control's
  double scale = 1;  ///< pixels per 15 twips
  const QPalette& palette;
  double logicalDpi = 96;
};

void drawControl(const DrawnControl& control, const Look& look, const Canvas& canvas);

/// Draws the focus ring just inside the edges of a control.
void drawRing(const Canvas& canvas);

Look lookOf(const DrawnControl& control);

}  // namespace qt
