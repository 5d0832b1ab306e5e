#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/mouse.h"

namespace qt {

/// The controls that a form's view draws itself; the others are widgets of the toolkit.
using DrawnControl =
    std::variant<platform::CellPane*, platform::Label*, platform::PictureBox*, platform::Frame*>;

/// What a control shows at the moment.
struct Look {
  bool visible = true;
  bool greyed = false;
  std::string text = {};
  platform::Colour backcolor = {};
  platform::Colour forecolor = {};
  bool operator==(const Look&) const = default;
};

/// The client area of a form: draws its controls and passes mouse input on to them.
///
/// The controls share one widget, because a widget begins and ends at whole device-independent
/// pixels. At a scale factor such as 1.25 those do not fall on the screen's pixels, and cells that
/// overlap or touch would show gaps and doubled borders; here every edge is rounded to a pixel of
/// the screen once, alike for both cells that meet at it.
class FormView final : public QWidget {
 public:
  FormView(platform::Form& form, QWidget* parent);

  /// How often controls have been drawn since the view was made, wholly or in part.
  long drawnControls() const { return drawnControls_; }

  // For assistive technology: the controls it draws, by number, from back to front.
  std::size_t itemCount() const { return items_.size(); }
  const platform::Accessible& accessibleOf(std::size_t item) const;
  bool isItemVisible(std::size_t item) const;
  bool isItemEnabled(std::size_t item) const;
  QRect itemRect(std::size_t item) const;  ///< in device-independent pixels of the view
  /// Presses and releases a mouse button on the control, once the caller has returned: a client
  /// that waits for it to be done could not answer a message box that it brings up.
  void performLater(std::size_t item, platform::MouseButton button);

 protected:
  bool event(QEvent* event) override;
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

  void addAll(const platform::Controls& controls, int left, int top);
  template <typename Control>
  void add(Control& control, int left, int top);
  void add(platform::Frame& frame, int left, int top);
  void add(platform::TextBox& box, int left, int top);
  void add(platform::CommandButton& button, int left, int top);
  void markStale(std::size_t item);
  void refreshStale();
  /// Tells assistive technology that a control is not any more what it was.
  void announce(std::size_t item, const Look& before, bool wasEnabled);
  /// The part of an item that no other in front of it covers.
  QRegion uncovered(std::size_t item) const;
  Item* itemAt(QPointF point);

  std::vector<Item> items_;  ///< from back to front
  bool anyStale_ = false;
  platform::CellPane* pressed_ = nullptr;
  long drawnControls_ = 0;
};

}  // namespace qt
