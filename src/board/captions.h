#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessoro {

/// What shows in place of a number where there is none: in the result of a line without a value,
/// and in a corner that the user has yet to state.
constexpr std::string_view noNumber = "?";

/// Whether the value may stand on the board: all its numbers are digits 1..9.
constexpr bool isDigit(int value) {
  return value >= 1 && value <= 9;
}

/// The number a caption shows: its longest decimal prefix after leading blanks, rounded half to
/// even, kept within 16 signed bits; 0 where there is none. So "", "?", "=" and operators read as
/// 0.
std::int16_t readNumber(std::string_view caption);

/// The number as captions show it: its decimal digits without blanks.
std::string numberText(int number);

/// The number, 0 or more, as the solution and the headings keep it: with a blank where a minus sign
/// would stand.
std::string signedNumberText(int number);

/// The text without the blanks around it.
std::string_view trimmed(std::string_view text);

}  // namespace tessoro
