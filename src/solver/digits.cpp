#include "solver/digits.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace tessoro {
namespace {

/// Returns SplitMix64's output for the state `x`; every bit of it depends on every bit of `x`.
constexpr std::uint64_t mix(std::uint64_t x) {
  x = (x ^ (x >> 30U)) * 0xbf58476d1ce4e5b9U;
  x = (x ^ (x >> 27U)) * 0x94d049bb133111ebU;
  return x ^ (x >> 31U);
}

/// SplitMix64's increment: 2^64 divided by the golden ratio, rounded to an odd number.
constexpr std::uint64_t goldenGamma = 0x9e3779b97f4a7c15U;

}  // namespace

int ReseededDigits::draw() {
  state_ = mix(state_ ^ std::bit_cast<std::uint64_t>(desktop_.secondsSinceMidnight()));
  state_ += goldenGamma;
  const double uniform = static_cast<double>(mix(state_) >> 11U) * 0x1p-53;  // in [0, 1)
  return std::min(9, static_cast<int>(std::nearbyint(9 * uniform + 1)));
}

}  // namespace tessoro
