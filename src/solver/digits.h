#pragma once

#include <cstdint>

#include "platform/desktop.h"

namespace tessoro {

/// Source of random digits.
class Digits {
 public:
  virtual ~Digits() = default;

  /// Returns a digit 1..9: 1 with probability 1/18, each of 2 to 8 with 1/9, 9 with 1/6.
  virtual int draw() = 0;
};

/// Random digits from a generator that is reseeded from the time of day before each draw.
///
/// Reseeding mixes the time into the state instead of replacing it. So the digits also vary when
/// many are drawn within one clock tick, or when the clock stops or is set back.
class ReseededDigits final : public Digits {
 public:
  explicit ReseededDigits(platform::Desktop& desktop) : desktop_(desktop) {}

  int draw() override;

 private:
  platform::Desktop& desktop_;
  std::uint64_t state_ = 0;
};

}  // namespace tessoro
