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

/// Returns the decimal number that the text begins with, after any blanks, rounded half to even and
/// clamped to 16 signed bits. Returns 0 if there is none, as in "", "?", "=" or an operator.
std::int16_t readNumber(std::string_view caption);

/// Returns the number in decimal without blanks, as captions show it.
std::string numberText(int number);

/// Returns the number, 0 or more, after a blank, as the solution and the page headings store it.
std::string signedNumberText(int number);

/// Returns the text without leading and trailing blanks.
std::string_view trimmed(std::string_view text);

}  // namespace tessoro
