#pragma once

#include <cstdint>
#include <string_view>

namespace tessoro {

/// Returns the value of the line "a op1 b op2 c": multiplication first, then addition and
/// subtraction from left to right. Returns -1 if the line has no value: a number is 0 (an empty
/// cell), an operator is not one of "+", "-", "*", or a step overflows 16 signed bits. Digits give
/// values from -80 to 729. A line can also have the value -1, which is not a valid result either.
std::int16_t EvalLine(std::int16_t a, std::int16_t b, std::int16_t c, std::string_view op1,
                      std::string_view op2);

}  // namespace tessoro
