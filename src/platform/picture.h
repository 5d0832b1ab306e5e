#pragma once

#include <array>
#include <string_view>

namespace platform {

/// Picture of 32 by 32 pixels, one character each: a hexadecimal digit is a colour of the classic
/// 16-colour palette, '.' is transparent.
struct Picture {
  static constexpr int size = 32;
  std::array<std::string_view, size> rows;
};

}  // namespace platform
