#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tessoro {

constexpr std::string_view OpPlus = "+";
constexpr std::string_view OpMinus = "-";
constexpr std::string_view OpTimes = "*";

/// Operator pairs of a line in search order; element 0 is unused.
constexpr std::array<std::string_view, 10> OpPairs{"",   "++", "+-", "--", "-+",
                                                   "+*", "*+", "-*", "*-", "**"};
constexpr std::size_t PairCount = 9;

}  // namespace tessoro
