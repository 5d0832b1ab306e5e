#include "platform/cell_pane.h"

namespace platform {

void CellPane::press(const MousePress& press) {
  if (!takesInput()) return;
  armed_ = press.button == MouseButton::left;
  if (mouseDown) mouseDown(press);
  if (press.button == MouseButton::right && contextMenu) contextMenu(press.shift, press.x, press.y);
}

void CellPane::release(MouseButton button, bool inside) {
  if (button != MouseButton::left || !armed_) return;
  armed_ = false;
  if (inside && takesInput() && click) click();
}

}  // namespace platform
