#pragma once

#include <QWidget>
#include <vector>

#include "platform/form.h"
#include "qt/draw_control.h"

namespace qt {

class ControlWidget;

/// The rectangle of a place in the client area, in device-independent pixels.
QRect pixelRect(const platform::Place& place);

/// The client area of a form. It has two jobs, to draw the form's controls and to say where the
/// keys lead; the toolkit does the rest.
///
/// The controls share one widget to be drawn in, because a widget begins and ends at whole
/// device-independent pixels. At a scale factor such as 1.25 those do not fall on the screen's
/// pixels, and cells that overlap or touch would show gaps and doubled borders; here every edge is
/// rounded to a pixel of the screen once, alike for both cells that meet at it. What the mouse, the
/// keys and assistive technology meet are widgets that lie at the controls' places and draw
/// nothing.
class FormView final : public QWidget {
 public:
  /// The form has to outlive the view.
  FormView(platform::Form& form, QWidget* parent);
  ~FormView() override;

  /// How often controls have been drawn, wholly or in part. Tests and benchmarks read it, to see
  /// when a change has reached the screen and that nothing else was drawn.
  long drawnControls() const { return drawnControls_; }

  /// Whether a handler is yielding. The screen then shows the board as it stands, but clients of
  /// assistive technology are told of it only when the handler is done with it.
  void setYielding(bool yielding);

  // For the widgets of the controls:
  /// Moves the focus where a key leads within the grid, or back to it, and tells the form where
  /// that is beyond the grid's edge; false if the key leads nowhere. `control` tells whether that
  /// key is down.
  bool moveFocus(ControlWidget& from, int key, bool control);
  /// Whether the user works with the keys, which puts a ring around the control with the focus, or
  /// with the mouse, which takes it away.
  void setKeysUsed(bool used);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  // Drawing.
  struct Item {
    DrawnControl control;
    platform::Place place;            ///< in the client area, twips
    Look look;                        ///< as the screen shows it, or will after the next repaint
    ControlWidget* widget = nullptr;  ///< none for what can be neither read nor pressed
  };

  /// Adds the controls, whose places are measured from the top left of their holder.
  void addAll(const platform::Controls& controls, const platform::Place& holder);
  // Each adds a control at its place in the client area.
  void add(DrawnControl control, const platform::Place& place);
  void add(platform::Frame* frame, const platform::Place& place);
  void add(platform::TextBox* box, const platform::Place& place);
  void add(platform::CommandButton* button, const platform::Place& place);
  /// Notes that the item may have changed, and has it looked at soon.
  void markStale(std::size_t item);
  /// Has `refreshStale` run once the handler that is running is done or yields.
  void refreshSoon();
  /// Draws, shows and hides what has changed, and tells clients of it.
  void refreshStale();
  void hide(ControlWidget& widget);
  /// Has the item drawn again, where nothing in front of it covers it.
  void updateItem(std::size_t item);
  /// Has the region drawn again, in device-independent pixels.
  void updateRegion(const QRegion& region);

  platform::Form& form_;
  std::vector<Item> items_;         ///< from back to front
  std::vector<std::size_t> stale_;  ///< those that may have changed since the last refresh
  bool yielding_ = false;
  long drawnControls_ = 0;

  // The keys.
  /// Makes it the control of the grid that Tab reaches.
  void setCurrent(ControlWidget* widget);
  /// Moves the ring to where the focus is now, if the user works with the keys.
  void focusMoved();
  /// The next control of the grid in the direction, a step of one; none beyond the edge.
  ControlWidget* neighbour(const ControlWidget& of, QPoint direction) const;

  ControlWidget* current_ = nullptr;       ///< the one of the grid that Tab reaches
  const ControlWidget* ringed_ = nullptr;  ///< the one with the ring of the focus, if any
};

}  // namespace qt
