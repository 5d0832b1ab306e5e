#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "platform/accessible.h"
#include "platform/colour.h"
#include "platform/picture.h"
#include "platform/property.h"

namespace platform {

/// A rectangle in twips (1/1440 inch), measured from the top left of what holds the control: the
/// frame around it, or else the form's client area.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// A typeface by name, its size in points, and its weight.
struct Font {
  std::string name = "MS Sans Serif";
  double points = 7.8;
  bool bold = true;
};

/// What every control has: a place, given once when its form is laid out, visibility, and what
/// assistive technology is told of it.
class Control : public Observable {
 public:
  Place place;
  Accessible accessible;
  Property<bool> Visible{*this, true};

  /// Gives the control the focus, as the keys do; without effect while no window shows it.
  void SetFocus() const {
    if (focusWanted) focusWanted();
  }
  /// Set by the window that shows the control, if it can have the focus.
  std::function<void()> focusWanted;

 protected:
  ~Control() = default;
};

/// One line of text, centred in its place.
class Label final : public Control {
 public:
  Label() {
    accessible = {Accessible::Role::label, [this] { return caption(); }, {}};
  }

  Property<std::string> caption{*this, ""};
  Colour backcolor = buttonFace;
  Colour forecolor = windowText;
  Font font;
};

/// A picture on the button-face colour, centred in its place and drawn without a border.
class PictureBox final : public Control {
 public:
  const Picture* picture = nullptr;  ///< none, and only the background is drawn
};

/// Lines of text that can be read but not changed, centred, on the button-face colour.
class TextBox final : public Control {
 public:
  std::string text;  ///< its lines, each but the last with a newline at its end
  Font font;
  /// Any mouse button went down over the text.
  std::function<void()> mouseDown;
};

/// A button as the desktop draws it, worked by mouse or keyboard.
class CommandButton final : public Control {
 public:
  std::string caption;
  Font font;
  /// It was pressed and released, by the mouse or the keys.
  std::function<void()> click;
};

class CellPane;
class Frame;

using ControlRef = std::variant<CellPane*, Label*, PictureBox*, Frame*, TextBox*, CommandButton*>;

/// The controls that a form or a frame holds, from the one farthest back to the one in front.
using Controls = std::vector<ControlRef>;

/// An etched border without a caption around the controls it holds. Hiding it hides the border
/// alone.
class Frame final : public Control {
 public:
  Controls controls;
};

}  // namespace platform
