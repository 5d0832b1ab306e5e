#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/control.h"
#include "platform/mouse.h"

namespace platform {

/// Display cell: a short text with its own colours and border. It reports mouse and key input.
///
/// The window passes on every mouse press and release, and the cell decides which become events:
/// none while it is disabled or hidden. A cell with a `click` handler is a button, whose caption is
/// greyed while it is disabled.
class CellPane final : public Control {
 public:
  Property<std::string> caption{*this, ""};
  Property<Colour> backcolor{*this, buttonFace};
  Property<Colour> forecolor{*this, windowText};
  Property<bool> enabled{*this, true};
  /// Free text for the program's use.
  Property<std::string> Tag{*this, ""};

  // Set once by the form's layout.
  std::string font = "Arial";
  double fontsize = 14.4;  // points
  bool fontbold = true;
  Colour bordertop = highlight3D;
  Colour borderleft = highlight3D;
  Colour borderright = shadow3D;
  Colour borderbottom = shadow3D;
  /// Always 0: the caption centred on the plain background.
  std::int16_t drawstyle = 0;
  /// Background of a picture; no cell has one.
  Colour picback = buttonFace;

  /// Called when any mouse button goes down.
  std::function<void(const MousePress&)> mouseDown;
  /// Called when a press is ignored because the cell is disabled.
  std::function<void()> refused;
  /// Called when the left button goes down and up inside the cell, with no other press in between.
  std::function<void()> click;
  /// Called when a character, in lower case, is typed while the cell has the focus, even if it is
  /// disabled. Returns whether the character has a meaning there.
  std::function<bool(char character, bool shift)> typed;
  /// Called when the right button goes down, with the shift state and the point in twips.
  std::function<void(std::int16_t shift, double x, double y)> contextMenu;

  /// Returns whether the cell reacts to clicks; other cells react to presses only.
  bool isButton() const { return static_cast<bool>(click); }

  /// Handles a mouse button going down on the cell.
  void press(const MousePress& press);
  /// Handles the release, inside or outside the cell, of a button that went down on it.
  void release(MouseButton button, bool inside);

 private:
  bool acceptsInput() const { return Visible() && enabled(); }

  bool armed_ = false;
};

}  // namespace platform
