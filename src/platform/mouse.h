#pragma once

#include <cstdint>

namespace platform {

enum class MouseButton : std::int16_t { left = 1, right = 2, middle = 4, other = 8 };

/// A mouse button going down over a control: the button, the shift state (1 shift, 2 control,
/// 4 alt, added up) and the point in twips from the control's top left.
struct MousePress {
  MouseButton button = MouseButton::left;
  std::int16_t shift = 0;
  double x = 0;
  double y = 0;
};

}  // namespace platform
