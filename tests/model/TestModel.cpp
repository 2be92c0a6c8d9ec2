// The system beside a plain book: random steps of a book-keeper are done in both, and after each
// post and each opening of the files every row must be the same.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <numeric>
#include <string>
#include <system_error>
#include <vector>

#include "ModelRun.h"

namespace lorvane::model {
namespace {

constexpr unsigned kSeed = 20260105;
constexpr int kSecondsToShrink = 120;

unsigned Setting(const char* name, unsigned byDefault) {
  const char* given = std::getenv(name);
  return given == nullptr ? byDefault : static_cast<unsigned>(std::stoul(given));
}

// The book is tested here, not the disk: where there is a memory file system with room, the
// companies lie there, unless the caller says where.
void UseMemoryFiles() {
  constexpr const char* kMemoryFiles = "/dev/shm";
  constexpr std::uintmax_t kRoom = std::uintmax_t{1} << 29U;
  std::error_code missing;
  const std::filesystem::space_info space = std::filesystem::space(kMemoryFiles, missing);
  if (!missing && space.available >= kRoom) {
    setenv("TMPDIR", kMemoryFiles, 0);
  }
}

TEST(Model, AgreesWithTheSystemAfterEveryPostAndReopening) {
  UseMemoryFiles();
  const unsigned seed = Setting("LORVANE_MODEL_SEED", kSeed);
  std::vector<unsigned> steps(Setting("LORVANE_MODEL_STEPS", LORVANE_MODEL_STEPS));
  std::iota(steps.begin(), steps.end(), 1U);
  std::optional<ModelFailure> failure = RunModel(seed, steps);
  if (!failure) {
    return;
  }
  const unsigned step = failure->step;
  const std::string first = failure->message;
  failure = Shrink(seed, steps, *failure, kSecondsToShrink);
  FAIL() << "Step " << step << " of seed " << seed << ": " << first
         << "This script, on a new company in ${DIR}, comes to the same:\n"
         << "---\n"
         << failure->script << "---\nRun on its own it says: " << RunAlone(failure->script);
}

}  // namespace
}  // namespace lorvane::model
