#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "platform/form.h"
#include "platform/mouse.h"
#include "qt/draw_control.h"

namespace qt {

/// The client area of a form: draws its controls and passes mouse input on to them.
///
/// The controls share one widget, because a widget begins and ends at whole device-independent
/// pixels. At a scale factor such as 1.25 those do not fall on the screen's pixels, and cells that
/// overlap or touch would show gaps and doubled borders; here every edge is rounded to a pixel of
/// the screen once, alike for both cells that meet at it.
class FormView final : public QWidget {
 public:
  FormView(platform::Form& form, QWidget* parent);
  ~FormView() override;

  /// How often controls have been drawn since the view was made, wholly or in part.
  long drawnControls() const { return drawnControls_; }

  // For assistive technology: the controls it draws, by number, from back to front.
  std::size_t itemCount() const { return items_.size(); }
  const platform::Accessible& accessibleOf(std::size_t item) const;
  Look lookOfItem(std::size_t item) const;
  bool isItemEnabled(std::size_t item) const;
  QRect itemRect(std::size_t item) const;  ///< in device-independent pixels of the view
  /// Presses and releases a mouse button on the control, once the caller has returned: a client
  /// that waits for it to be done could not answer a message box that it brings up.
  void performLater(std::size_t item, platform::MouseButton button);
  /// Called when a control is not any more what it was.
  std::function<void(std::size_t item, const Look& before, bool wasEnabled)> itemChanged;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct Item {
    DrawnControl control;
    platform::Place place;  ///< in the client area, twips
    Look look;              ///< as the screen shows it, or will after the next repaint
    bool enabled = true;    ///< as assistive technology was last told
    bool stale = false;     ///< the control may have changed since
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
  /// The part of an item that no other in front of it covers.
  QRegion uncovered(std::size_t item) const;
  Item* itemAt(QPointF point);

  std::vector<Item> items_;  ///< from back to front
  bool anyStale_ = false;
  platform::CellPane* pressed_ = nullptr;  ///< while a button that went down on it is down
  long drawnControls_ = 0;
};

}  // namespace qt
