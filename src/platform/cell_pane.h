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
/// The window that shows the cell passes on every mouse press and release. The cell decides which
/// of them are events, so that a disabled or hidden cell is silent in any window. A cell with a
/// `click` handler is a button: its caption is drawn greyed while it is disabled.
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
  /// 0, the only style: the caption centred on the plain background.
  std::int16_t drawstyle = 0;
  /// The background of a picture; no cell has one.
  Colour picback = buttonFace;

  /// Any mouse button went down.
  std::function<void(const MousePress&)> mouseDown;
  /// A mouse button went down on the cell while it was visible but disabled.
  std::function<void()> refused;
  /// The left button went down and came up again inside the cell, which was visible and enabled
  /// both times, with no other press in between.
  std::function<void()> click;
  /// A character was typed while the cell, disabled or not, had the focus. Letters are in lower
  /// case, and `shift` says whether that key was down. Returns whether the character has a meaning
  /// there.
  std::function<bool(char character, bool shift)> typed;
  /// The right button went down; the arguments are the shift state and the point.
  std::function<void(std::int16_t shift, double x, double y)> contextMenu;

  /// Returns whether the cell is a button, which reacts to clicks; other cells react to presses.
  bool isButton() const { return static_cast<bool>(click); }

  /// Handles a mouse button that went down on the cell.
  void press(const MousePress& press);
  /// Handles a mouse button that came up, inside the cell or not, after one went down on the cell.
  void release(MouseButton button, bool inside);

 private:
  bool acceptsInput() const { return Visible() && enabled(); }

  bool armed_ = false;
};

}  // namespace platform
