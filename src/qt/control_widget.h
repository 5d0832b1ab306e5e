#pragma once

#include <QWidget>
#include <string>

#include "platform/control.h"
#include "platform/mouse.h"
#include "qt/draw_control.h"

namespace qt {

class FormView;

/// Invisible widget over a control that a form's view draws. Through it, Qt handles focus, mouse
/// grab, hit testing and the accessible tree.
class ControlWidget final : public QWidget {
 public:
  /// The control must outlive the widget.
  ControlWidget(DrawnControl control, const platform::Place& place, FormView& view);

  /// Returns the place in the form's client area, in twips.
  const platform::Place& place() const { return place_; }
  const platform::Accessible& accessible() const { return base(control_).accessible; }
  /// Returns whether the control is a disabled cell. The widget itself stays enabled, so that the
  /// cell can still be read and can explain why it does nothing.
  bool isDisabled() const;

  /// Notifies accessibility clients of a changed name or state. Qt itself reports what is shown or
  /// hidden and what has the focus.
  void notifyClients();
  /// Presses and releases a mouse button on the control after the caller has returned. An
  /// accessibility client that had to wait for the press could not answer a box that it opens.
  void pressLater(platform::MouseButton button);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void press(platform::MouseButton button);
  /// Passes a typed character to the cell. Returns whether the character has a meaning there.
  bool type(const QString& text, bool shift);

  DrawnControl control_;
  platform::CellPane* cell_;  ///< the control if it is a cell, otherwise null
  platform::Place place_;
  FormView& view_;
  // As clients were last notified.
  std::string name_;
  bool disabled_;
};

}  // namespace qt
