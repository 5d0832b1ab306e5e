#pragma once

#include <QPainter>
#include <string>
#include <variant>

#include "platform/cell_pane.h"
#include "platform/control.h"

namespace qt {

/// The controls that a form's view draws itself; the others are widgets of the toolkit.
using DrawnControl =
    std::variant<platform::CellPane*, platform::Label*, platform::PictureBox*, platform::Frame*>;

/// What all of them have in common.
inline platform::Control& base(const DrawnControl& control) {
  return std::visit([](auto* it) -> platform::Control& { return *it; }, control);
}

/// What a control shows at the moment.
struct Look {
  bool visible = true;
  bool greyed = false;
  std::string text = {};
  platform::Colour backcolor = {};
  platform::Colour forecolor = {};
  bool operator==(const Look&) const = default;
};

/// Where and how a control is drawn.
struct Canvas {
  QPainter& painter;  ///< in pixels of the screen
  QRect rect;         ///< the control's, in these pixels
  double scale = 1;   ///< pixels of the screen to a device-independent one
  const QPalette& palette;
  double logicalDpi = 96;
};

/// Draws the control as `look` says.
void drawControl(const DrawnControl& control, const Look& look, const Canvas& canvas);

/// Draws the ring around a control that has the focus, just inside its edges.
void drawRing(const Canvas& canvas);

/// What the control shows now.
Look lookOf(const DrawnControl& control);

}  // namespace qt
