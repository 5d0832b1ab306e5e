#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/mouse.h"

namespace platform {

/// Accessibility data of a control, for screen readers and other assistive technology.
struct Accessible {
  enum class Role { none, label, button, image };

  /// Named action of an enabled control, which presses a mouse button on it.
  struct Action {
    std::string_view name;
    MouseButton button = MouseButton::left;
  };

  Role role = Role::none;             ///< `none` hides the control
  std::function<std::string()> name;  ///< returns the current description
  std::vector<Action> actions;
  /// Whether the control belongs to a grid. Arrow keys move within the grid, which is one Tab stop.
  bool inGrid = false;
};

}  // namespace platform
