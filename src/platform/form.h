#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/control.h"

namespace platform {

/// Menu item, or a separator if its caption is "-".
class MenuItem final : public Observable {
 public:
  explicit MenuItem(std::string text) : caption{*this, std::move(text)} {}

  Property<std::string> caption;
  Property<bool> enabled{*this, true};
  /// Items of the submenu, from the top down.
  std::vector<MenuItem*> items;
  std::function<void()> click;

  /// Runs the item's command, unless it is disabled.
  void choose() const {
    if (enabled() && click) click();
  }
};

/// Window of fixed size. Its menu bar lies outside the client area.
class Form : public Observable {
 public:
  Property<std::string> caption{*this, ""};
  int clientWidth = 0;   // twips
  int clientHeight = 0;  // twips
  const Picture* icon = nullptr;
  std::vector<MenuItem*> menus;
  Controls controls;
  /// Whether a modal form is shown; setting it to false closes the form.
  Property<bool> Visible{*this, false};
  /// Called when the user closes the window.
  std::function<void()> unload;
  /// Called when the user presses the help key.
  std::function<void()> help;
  /// Called when a key cannot move the focus further, as at the grid's edge.
  std::function<void()> edgeReached;

 protected:
  ~Form() = default;
};

}  // namespace platform
