#include "screen/SystemClock.h"

#include <ctime>

namespace lorvane {

DateTime SystemClock::operator()() const {
  constexpr int kFirstYear = 1900;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return {local.tm_year + kFirstYear,
          local.tm_mon + 1,
          local.tm_mday,
          local.tm_hour,
          local.tm_min,
          local.tm_sec};
}

Clock FixedClock(const DateTime& time) {
  return [time] { return time; };
}

}  // namespace lorvane
