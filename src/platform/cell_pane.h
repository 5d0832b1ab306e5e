#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/control.h"
#include "platform/mouse.h"

namespace platform {

/// A display cell: a short text in its own colours and border that reports mouse input and typed
/// characters.
///
/// The window that shows it passes every mouse press and release on; which presses and
/// releases become events is decided here, so a disabled or hidden cell is silent whatever shows
/// it. A cell with a `click` handler is a button: it draws its caption greyed while disabled.
class CellPane final : public Control {
 public:
  Property<std::string> caption{*this, ""};
  Property<Colour> backcolor{*this, buttonFace};
  Property<Colour> forecolor{*this, windowText};
  Property<bool> enabled{*this, true};
  /// Free text kept for the program.
  Property<std::string> Tag{*this, ""};

  // Fixed by the form's layout.
  std::string font = "Arial";
  double fontsize = 14.4;  // points
  bool fontbold = true;
  Colour bordertop = highlight3D;
  Colour borderleft = highlight3D;
  Colour borderright = shadow3D;
  Colour borderbottom = shadow3D;
  /// 0, the one style there is: the caption centred on the plain background.
  std::int16_t drawstyle = 0;
  /// What would lie behind a picture; no cell carries one.
  Colour picback = buttonFace;

  /// Any mouse button went down.
  std::function<void(const MousePress&)> mouseDown;
  /// A press on the cell, which is visible but disabled, did nothing.
  std::function<void()> refused;
  /// The left button went down and came up again inside the cell, which took input both times and
  /// met no other press in between.
  std::function<void()> click;
  /// A character was typed while the cell, disabled or not, had the focus; letters are small ones,
  /// and `shift` tells whether that key was down. The result is whether it means anything there.
  std::function<bool(char character, bool shift)> typed;
  /// The right button went down; the arguments are the shift state and the point.
  std::function<void(std::int16_t shift, double x, double y)> contextMenu;

  /// Whether it is worked by clicks, as a button is; other cells take presses alone.
  bool isButton() const { return static_cast<bool>(click); }

  /// A mouse button went down on the cell.
  void press(const MousePress& press);
  /// A button came up, inside the cell or not, after one had gone down on the cell.
  void release(MouseButton button, bool inside);

 private:
  bool takesInput() const { return Visible() && enabled(); }

  bool armed_ = false;
};

}  // namespace platform
