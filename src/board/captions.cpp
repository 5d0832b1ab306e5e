#include "board/captions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace tessoro {

std::int16_t readNumber(std::string_view caption) {
  std::string_view text = caption;
  while (text.starts_with(' ')) text.remove_prefix(1);
  // Fast path for the search, which reads many texts, nearly all of them one digit.
  if (text.size() == 1) {
    const int digit = text[0] - '0';
    return static_cast<std::int16_t>(isDigit(digit) ? digit : 0);
  }
  // Letters are cut off because from_chars accepts "inf" and "nan".
  std::string_view decimal = text.substr(0, text.find_first_not_of("+-.0123456789"));
  if (decimal.starts_with('+') && !decimal.starts_with("+-")) decimal.remove_prefix(1);
  double value = 0;
  std::from_chars(decimal.data(), decimal.data() + decimal.size(), value, std::chars_format::fixed);
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(
      std::clamp<double>(std::nearbyint(value), Limits::min(), Limits::max()));
}

std::string numberText(int number) {
  return std::to_string(number);
}

std::string signedNumberText(int number) {
  return " " + numberText(number);
}

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace tessoro
