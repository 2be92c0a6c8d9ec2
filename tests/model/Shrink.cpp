#include <algorithm>
#include <chrono>
#include <cstddef>

#include "ModelRun.h"

namespace lorvane::model {

// Leaves out ever smaller runs of steps, and keeps what still fails.
ModelFailure Shrink(unsigned seed, std::vector<unsigned> steps, ModelFailure failure, int seconds) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + std::chrono::seconds(seconds);
  const auto keepUpToFailure = [&] {
    steps.erase(std::upper_bound(steps.begin(), steps.end(), failure.step), steps.end());
  };
  keepUpToFailure();
  for (std::size_t size = steps.size() / 2; size > 0; size /= 2) {
    for (std::size_t from = 0; from < steps.size();) {
      if (Clock::now() > end) {
        return failure;
      }
      std::vector<unsigned> fewer = steps;
      const auto begin = fewer.begin() + static_cast<std::ptrdiff_t>(from);
      fewer.erase(begin, begin + static_cast<std::ptrdiff_t>(std::min(size, steps.size() - from)));
      if (std::optional<ModelFailure> still = RunModel(seed, fewer)) {
        failure = std::move(*still);
        steps = std::move(fewer);
        keepUpToFailure();
      } else {
        from += size;
      }
    }
  }
  return failure;
}

}  // namespace lorvane::model
