#pragma once

#include <array>
#include <string_view>

namespace platform {

/// A picture of 32 by 32 pixels. Each character is one pixel: a hexadecimal digit is a colour of
/// the classic 16-colour palette, '.' lets what lies behind show through.
struct Picture {
  static constexpr int size = 32;
  std::array<std::string_view, size> rows;
};

}  // namespace platform
