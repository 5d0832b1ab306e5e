#pragma once

#include <QWidget>
#include <vector>

#include "platform/form.h"
#include "qt/draw_control.h"

namespace qt {

class ControlWidget;

/// The rectangle of a place in the client area, in device-independent pixels.
QRect pixelRect(const platform::Place& place);

/// The client area of a form: draws its controls, and has the toolkit do the rest.
///
/// The controls share one widget to be drawn in, because a widget begins and ends at whole
/// device-independent pixels. At a scale factor such as 1.25 those do not fall on the screen's
/// pixels, and cells that overlap or touch would show gaps and doubled borders; here every edge is
/// rounded to a pixel of the screen once, alike for both cells that meet at it. What the mouse, the
/// keys and assistive technology meet are widgets that lie at the controls' places and draw
/// nothing.
class FormView final : public QWidget {
 public:
  FormView(platform::Form& form, QWidget* parent);
  ~FormView() override;

  /// How often controls have been drawn since the view was made, wholly or in part.
  long drawnControls() const { return drawnControls_; }

  /// Gives the focus to the first control that Tab reaches.
  void focusFirst();

  // For the widgets of the controls:
  /// Gives the focus to the next control of the grid in the direction of an arrow key, if there is
  /// one. Whether the key is an arrow.
  bool moveFocus(const ControlWidget& from, int key);
  /// The focus has come to a widget of the view, or has left one.
  void focusMoved();
  /// The user works with the keys: the control with the focus has a ring. Or with the mouse: it has
  /// none.
  void setKeysUsed(bool used);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct Item {
    DrawnControl control;
    platform::Place place;            ///< in the client area, twips
    Look look;                        ///< as the screen shows it, or will after the next repaint
    ControlWidget* widget = nullptr;  ///< none for what can be neither read nor pressed
    bool enabled = true;              ///< as assistive technology was last told
    std::string name = {};            ///< the same
    bool stale = false;               ///< the control may have changed since
  };

  void addAll(const platform::Controls& controls, const platform::Place& holder);
  /// Adds a control at its place in the client area.
  template <typename Control>
  void add(Control& control, const platform::Place& place);
  void add(platform::Frame& frame, const platform::Place& place);
  void add(platform::TextBox& box, const platform::Place& place);
  void add(platform::CommandButton& button, const platform::Place& place);
  void markStale(std::size_t item);
  void refreshStale();
  void hide(ControlWidget& widget);
  static void tellClients(Item& item);
  void setCurrent(ControlWidget* widget);
  /// Has the place drawn again, where nothing in front of item `above` covers it.
  void updatePlace(const platform::Place& place, std::size_t above);

  std::vector<Item> items_;  ///< from back to front
  bool anyStale_ = false;
  ControlWidget* current_ = nullptr;       ///< the one of the grid that Tab reaches
  const ControlWidget* ringed_ = nullptr;  ///< the one with the ring of the focus, if any
  long drawnControls_ = 0;
};

}  // namespace qt
