#pragma once

#include <chrono>

namespace platform {

/// Tells the local time of day at a moment of the system's clock.
///
/// The clock is read before every random digit, and converting to local time takes much longer
/// than reading the clock; so the conversion is made once for each hour met.
class Clock {
 public:
  using Time = std::chrono::system_clock::time_point;

  /// Seconds since local midnight, with fractions: 0 <= t < 86400.
  double secondsSinceMidnight(Time now = std::chrono::system_clock::now());

 private:
  Time hourStart_ = Time::min();
  Time hourEnd_ = Time::min();
  double hourSeconds_ = 0;  // from midnight to hourStart_
};

}  // namespace platform
