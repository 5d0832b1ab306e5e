#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/mouse.h"

namespace platform {

/// How a control presents itself to assistive technology, such as a screen reader.
struct Accessible {
  enum class Role { none, label, button, image };

  /// Something the user can have done to an enabled control; it stands for a press of the button.
  struct Action {
    std::string name;
    MouseButton button = MouseButton::left;
  };

  Role role = Role::none;             ///< with `none` the control is not presented at all
  std::function<std::string()> name;  ///< the control in words, as it is at the moment
  std::vector<Action> actions;
  /// One of a grid of controls that the arrow keys go through, and that Tab takes as one.
  bool inGrid = false;
};

}  // namespace platform
