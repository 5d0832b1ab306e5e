#pragma once

#include <cstdint>

#include "platform/desktop.h"

namespace tessoro {

/// Where random digits come from.
class Digits {
 public:
  Digits() = default;
  Digits(const Digits&) = delete;
  Digits& operator=(const Digits&) = delete;
  virtual ~Digits() = default;

  /// A digit 1..9: 1 with probability 1/18, each of 2 to 8 with 1/9, 9 with 1/6.
  virtual int draw() = 0;
};

/// Digits of a random generator that is reseeded from the time of day before each of them.
///
/// Reseeding mixes the time into the generator's state and never replaces it. Many digits are
/// drawn within one tick of any clock, and they have to differ all the same; so do those of a
/// clock that stands still or is set back.
class ReseededDigits final : public Digits {
 public:
  explicit ReseededDigits(platform::Desktop& desktop) : desktop_(desktop) {}

  int draw() override;

 private:
  void reseed(double secondsSinceMidnight);
  /// A number of the uniform distribution on [0, 1).
  double uniform();

  platform::Desktop& desktop_;
  std::uint64_t state_ = 0;
};

}  // namespace tessoro
