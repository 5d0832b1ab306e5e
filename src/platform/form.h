#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/control.h"

namespace platform {

/// An item of a menu. One whose caption is "-" is a separator.
class MenuItem final : public Observable {
 public:
  explicit MenuItem(std::string text) : caption{*this, std::move(text)} {}

  Property<std::string> caption;
  Property<bool> enabled{*this, true};
  /// The items of the menu that this one opens, from the top down.
  std::vector<MenuItem*> items;
  std::function<void()> click;

  /// The user chose the item; a disabled item does not react.
  void choose() const {
    if (enabled() && click) click();
  }
};

/// A window of fixed size. The menu bar, if it has one, lies outside the client area.
class Form : public Observable {
 public:
  Property<std::string> caption{*this, ""};
  int clientWidth = 0;   // twips
  int clientHeight = 0;  // twips
  const Picture* icon = nullptr;
  std::vector<MenuItem*> menus;
  Controls controls;
  /// True while a modal form is shown; setting it to false closes the form.
  Property<bool> Visible{*this, false};
  /// The user has told the window to close.
  std::function<void()> unload;
  /// The user has asked for help, by its key.
  std::function<void()> help;
  /// A key leads nowhere: beyond the edge of the grid of controls, or from a control outside it.
  std::function<void()> edgeReached;

 protected:
  ~Form() = default;
};

}  // namespace platform
