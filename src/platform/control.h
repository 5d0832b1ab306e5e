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

/// Rectangle in twips (1/1440 inch), relative to the top left of the enclosing frame, or of the
/// form's client area.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

struct Font {
  std::string name = "MS Sans Serif";
  double points = 7.8;
  bool bold = true;
};

/// Base of all controls. Its place and accessibility data are set once, when the form is laid out.
class Control : public Observable {
 public:
  Place place;
  Accessible accessible;
  Property<bool> Visible{*this, true};

  /// Gives the control the keyboard focus; does nothing while no window shows it.
  void SetFocus() const {
    if (focusWanted) focusWanted();
  }
  /// Set by the window that shows the control, if it accepts the focus.
  std::function<void()> focusWanted;

 protected:
  ~Control() = default;
};

/// Line of text, centred in its place.
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

/// Picture without a border, centred on the button-face colour.
class PictureBox final : public Control {
 public:
  const Picture* picture = nullptr;  ///< null draws only the background
};

/// Read-only lines of text, centred on the button-face colour.
class TextBox final : public Control {
 public:
  std::string text;  ///< lines separated by newlines
  Font font;
  /// Called when any mouse button goes down over the text.
  std::function<void()> mouseDown;
};

/// Native push button.
class CommandButton final : public Control {
 public:
  std::string caption;
  Font font;
  /// Called when the button is clicked, or pressed by a key.
  std::function<void()> click;
};

class CellPane;
class Frame;

using ControlRef = std::variant<CellPane*, Label*, PictureBox*, Frame*, TextBox*, CommandButton*>;

/// Controls of a form or a frame, from back to front.
using Controls = std::vector<ControlRef>;

/// Etched border, without a caption, around its controls. Hiding it hides only the border.
class Frame final : public Control {
 public:
  Controls controls;
};

}  // namespace platform
