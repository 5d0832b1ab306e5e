#pragma once

#include <array>
#include <cstdint>

namespace platform {

/// 32-bit colour: red, green and blue in the low three bytes, red lowest. With the top bit set it
/// is a theme colour, looked up when it is drawn.
struct Colour {
  std::uint32_t value = 0;
  bool operator==(const Colour&) const = default;
};

/// Returns the colour of red, green and blue, each 0..255.
constexpr Colour rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return {red | green << 8U | blue << 16U};
}

constexpr std::uint32_t themeColourFlag = 0x80000000U;
constexpr Colour windowText{themeColourFlag | 0U};
constexpr Colour buttonFace{themeColourFlag | 1U};
constexpr Colour highlight3D{themeColourFlag | 2U};
constexpr Colour shadow3D{themeColourFlag | 3U};

/// Classic 16-colour palette: eight dark colours, then eight bright ones, each in the order black,
/// blue, green, cyan, red, magenta, yellow, white. Colour 7 is light grey, 8 is dark grey.
constexpr std::array<Colour, 16> palette{
    rgb(0, 0, 0),       rgb(0, 0, 128),   rgb(0, 128, 0),   rgb(0, 128, 128),
    rgb(128, 0, 0),     rgb(128, 0, 128), rgb(128, 128, 0), rgb(192, 192, 192),
    rgb(128, 128, 128), rgb(0, 0, 255),   rgb(0, 255, 0),   rgb(0, 255, 255),
    rgb(255, 0, 0),     rgb(255, 0, 255), rgb(255, 255, 0), rgb(255, 255, 255)};

}  // namespace platform
