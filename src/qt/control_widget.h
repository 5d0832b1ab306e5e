#pragma once

#include <QWidget>

#include "platform/control.h"
#include "platform/mouse.h"
#include "qt/draw_control.h"

namespace qt {

class FormView;

/// The widget of a control that a form's view draws. It draws nothing itself, but lies at the
/// control's place, so that the focus, the grab of the mouse, what lies under it and the tree that
/// assistive technology reads are the toolkit's work.
class ControlWidget final : public QWidget {
 public:
  ControlWidget(DrawnControl control, const platform::Place& place, FormView& view);

  /// In the form's client area, twips.
  const platform::Place& place() const { return place_; }
  const platform::Accessible& accessible() const { return accessibleOf(control_); }
  bool takesInput() const { return qt::takesInput(control_); }

  /// Presses and releases a mouse button on the control, once the caller has returned: a client of
  /// assistive technology that waits for it to be done could not answer a message box that it
  /// brings up.
  void pressLater(platform::MouseButton button);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  platform::CellPane* cell() const;
  void press(platform::MouseButton button);

  DrawnControl control_;
  platform::Place place_;
  FormView& view_;
};

/// Has the toolkit present these widgets to assistive technology as the controls they stand for.
void installAccessibleControls();

}  // namespace qt
