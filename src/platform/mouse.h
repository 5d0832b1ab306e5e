#pragma once

#include <cstdint>

namespace platform {

enum class MouseButton : std::int16_t { left = 1, right = 2, middle = 4, other = 8 };

/// Press of a mouse button over a control: the button, the shift state (sum of 1 Shift, 2 Ctrl and
/// 4 Alt) and the point in twips from the control's top left.
struct MousePress {
  MouseButton button = MouseButton::left;
  std::int16_t shift = 0;
  double x = 0;
  double y = 0;
};

}  // namespace platform
