#include "platform/clock.h"

#include <ctime>

namespace platform {

double Clock::secondsSinceMidnight(Time now) {
  if (now < hourStart_ || now >= hourEnd_) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    std::tm local{};
    // It fails for years beyond the range of int alone.
    static_cast<void>(localtime_r(&seconds, &local));
    const auto intoHour = std::chrono::minutes(local.tm_min) + std::chrono::seconds(local.tm_sec);
    hourStart_ = std::chrono::system_clock::from_time_t(seconds) - intoHour;
    hourEnd_ = hourStart_ + std::chrono::hours(1);
    hourSeconds_ = local.tm_hour * 3600.0;
  }
  return hourSeconds_ + std::chrono::duration<double>(now - hourStart_).count();
}

}  // namespace platform
