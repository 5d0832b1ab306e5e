#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessoro {

/// Caption for a missing number: the result of a line without a value, or a corner not set yet.
constexpr std::string_view noNumber = "?";

/// Returns whether the value is a digit 1..9, the only numbers allowed on the board.
constexpr bool isDigit(int value) {
  return value >= 1 && value <= 9;
}

/// Returns the longest decimal prefix after leading blanks, rounded half to even and clamped to
/// 16 signed bits. Text without one, such as "", "?", "=" or an operator, reads as 0.
std::int16_t readNumber(std::string_view caption);

/// Returns the number in decimal without blanks, as captions show it.
std::string numberText(int number);

/// Returns the number, 0 or more, with a blank in place of a minus sign, as the solution and the
/// page headings store it.
std::string signedNumberText(int number);

/// Returns the text without leading and trailing blanks.
std::string_view trimmed(std::string_view text);

}  // namespace tessoro
