#pragma once

#include <functional>

#include "basic/Date.h"

namespace lorvane {

/// Tells the present date and time.
using Clock = std::function<DateTime()>;

/// The machine's local date and time, to the second. Nothing else reads the system's clock.
struct SystemClock {
  DateTime operator()() const;
};

/// A clock that stands.
[[nodiscard]] Clock FixedClock(const DateTime& time);

}  // namespace lorvane
