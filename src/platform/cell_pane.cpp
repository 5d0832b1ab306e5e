#include "platform/cell_pane.h"

namespace platform {

void CellPane::press(const MousePress& press) {
  armed_ = acceptsInput() && press.button == MouseButton::left;
  if (!acceptsInput()) {
    if (Visible() && refused) refused();
    return;
  }
  if (mouseDown) mouseDown(press);
  if (press.button == MouseButton::right && contextMenu && acceptsInput()) {
    contextMenu(press.shift, press.x, press.y);
  }
}

void CellPane::release(MouseButton button, bool inside) {
  if (button != MouseButton::left || !armed_) return;
  armed_ = false;
  if (inside && acceptsInput() && click) click();
}

}  // namespace platform
