#pragma once

#include <QWidget>
#include <vector>

#include "platform/form.h"
#include "qt/convert.h"
#include "qt/draw_control.h"

namespace qt {

class ControlWidget;

/// Widget that shows the client area of a form. It draws the form's controls and decides where the
/// keys move the focus; Qt does the rest.
///
/// All controls are drawn by this one widget, because a widget begins and ends at whole
/// device-independent pixels. At a scale factor such as 1.25 these are not whole pixels of the
/// screen, and cells that overlap or touch would show gaps and doubled borders. Here every edge is
/// rounded to the screen's pixels once, in the same way for both cells that share it. Mouse,
/// keyboard and accessibility go through one invisible widget per control, laid over its drawing.
class FormView final : public QWidget {
 public:
  /// The form must outlive the view.
  FormView(platform::Form& form, double zoom, QWidget* parent);
  ~FormView() override;

  /// Returns the size of the whole client area.
  QSize sizeHint() const override;

  /// Returns how many controls have been drawn so far, wholly or in part. Tests and benchmarks use
  /// it to see when a change has reached the screen and how much else was drawn.
  long drawnControls() const { return drawnControls_; }

  /// Sets whether a handler is yielding. The screen then shows the board as it is, but
  /// accessibility clients are notified only when the handler has finished.
  void setYielding(bool yielding);

  /// Sets the zoom, in device-independent pixels per 15 twips. Text boxes and command buttons keep
  /// the zoom they were created with.
  void setZoom(double zoom);

  // For the widgets of the controls:
  /// Returns how many twips make a device-independent pixel.
  double twipsPerPixel() const { return unzoomedTwipsPerPixel / zoom_; }
  /// Returns the rectangle of a place in the client area, in device-independent pixels.
  QRect rectOf(const platform::Place& place) const;
  /// Moves the focus by an arrow key, Home or End; `ctrl` says whether Ctrl is down. Notifies the
  /// form if there is nothing in that direction. Returns false for any other key.
  bool moveFocus(ControlWidget& from, int key, bool ctrl);
  /// Records whether the user works with the keyboard, and shows or hides the focus ring.
  void setKeysUsed(bool used);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  // Drawing.
  struct Item {
    DrawnControl control;
    platform::Place place;            ///< in the client area, twips
    Look look;                        ///< as the screen shows it, or will after the next repaint
    ControlWidget* widget = nullptr;  ///< null if the control has no accessible role
  };

  /// Adds the controls, whose places are relative to `holder`.
  void addAll(const platform::Controls& controls, const platform::Place& holder);
  void add(DrawnControl control, const platform::Place& place);
  void add(platform::Frame* frame, const platform::Place& place);
  void add(platform::TextBox* box, const platform::Place& place);
  void add(platform::CommandButton* button, const platform::Place& place);
  /// Schedules `refresh` for when the running handler finishes or yields.
  void refreshSoon();
  /// Repaints, shows and hides what has changed, and notifies accessibility clients.
  void refresh();
  void hideWidget(ControlWidget& widget);
  void repaintSoon(const platform::Place& place);

  platform::Form& form_;
  double zoom_;
  std::vector<Item> items_;  ///< from back to front
  bool refreshScheduled_ = false;
  bool yielding_ = false;
  long drawnControls_ = 0;

  // The keys.
  void setTabStop(ControlWidget* widget);
  /// Moves the focus ring to where the focus is now, if the user works with the keyboard.
  void moveRing();
  /// Returns the next control of the grid in the direction, a step of one; null beyond the edge.
  ControlWidget* neighbour(const ControlWidget& of, QPoint direction) const;

  ControlWidget* tabStop_ = nullptr;       ///< the control of the grid that Tab reaches
  const ControlWidget* ringed_ = nullptr;  ///< the control with the focus ring, if any
  /// Whether the user works with the keyboard. Tab, the menu keys and every key with a meaning on
  /// the board set it; the mouse clears it. Qt has such an attribute, too, but Qt 6.11 clears it
  /// whenever the focus moves by anything but Tab.
  bool keysUsed_ = false;
};

}  // namespace qt
