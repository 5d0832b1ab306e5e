#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tessoro {

constexpr std::string_view OpPlus = "+";
constexpr std::string_view OpMinus = "-";
constexpr std::string_view OpTimes = "*";

/// The operator pairs of a line in the order in which a search tries them; element 0 is not used.
constexpr std::array<std::string_view, 10> OpPairs{"",   "++", "+-", "--", "-+",
                                                   "+*", "*+", "-*", "*-", "**"};
constexpr std::size_t PairCount = 9;

}  // namespace tessoro
