#pragma once

#include <cstdint>
#include <string_view>

namespace tessoro {

/// The value of the line "a op1 b op2 c", multiplication before addition and subtraction, those
/// from left to right. -1 when the line has no value: a number is 0 (which is how an empty cell
/// reads), an operator is not one of "+", "-", "*", or a step leaves 16 signed bits. With digits
/// the values lie between -80 and 729; -1 can be one of them, and is no digit either way.
std::int16_t EvalLine(std::int16_t a, std::int16_t b, std::int16_t c, std::string_view op1,
                      std::string_view op2);

}  // namespace tessoro
