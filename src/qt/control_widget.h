#pragma once

#include <QWidget>
#include <string>

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
  /// The control has to outlive the widget.
  ControlWidget(DrawnControl control, const platform::Place& place, FormView& view);

  /// In the form's client area, twips.
  const platform::Place& place() const { return place_; }
  /// What assistive technology is to be told of the control.
  const platform::Accessible& accessible() const { return base(control_).accessible; }
  /// Whether it is a disabled cell. The widget itself is enabled all the same: what is disabled can
  /// be read as well, and says why it does nothing.
  bool isDisabled() const;

  /// Tells clients of assistive technology the name and the state, if they have changed. What is
  /// shown, hidden or has the focus the toolkit tells by itself.
  void notifyClients();
  /// Presses and releases a mouse button on the control, once the caller has returned: a client of
  /// assistive technology that waits for it to be done could not answer a message box that it
  /// brings up.
  void pressLater(platform::MouseButton button);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Presses and releases a mouse button on the control at once.
  void press(platform::MouseButton button);
  /// Gives the cell the character that was typed; whether it means anything there.
  bool type(const QString& text, bool shift);

  DrawnControl control_;
  platform::CellPane* cell_;  ///< the same, if it is a cell
  platform::Place place_;
  FormView& view_;
  std::string name_;  ///< as clients were last told
  bool disabled_;     ///< the same
};

}  // namespace qt
