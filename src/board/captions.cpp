#include "board/captions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace tessoro {

std::int16_t readNumber(std::string_view caption) {
  const std::string_view text = trimmed(caption);
  // Most captions are one digit, and a move reads dozens of them.
  if (text.size() == 1) {
    const int digit = text.front() - '0';
    return static_cast<std::int16_t>(digit >= 0 && digit <= 9 ? digit : 0);
  }
  // Letters are cut off first, since the library would take "inf" for a number.
  std::string_view decimal = text.substr(0, text.find_first_not_of("+-.0123456789"));
  if (decimal.starts_with('+')) decimal.remove_prefix(1);
  double value = 0;
  std::from_chars(decimal.data(), decimal.data() + decimal.size(), value, std::chars_format::fixed);
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(
      std::clamp<double>(std::nearbyint(value), Limits::min(), Limits::max()));
}

std::string numberText(int number) { return std::to_string(number); }

std::string signedNumberText(int number) {
  std::string text(number < 0 ? 0 : 1, ' ');
  return text.append(std::to_string(number));
}

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace tessoro
