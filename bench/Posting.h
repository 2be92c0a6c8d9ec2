#pragma once

#include <string>

namespace lorvane {

/// The seconds that posting takes: every saved entry of industry A's employees goes, through the
/// payment window. Raises std::runtime_error when one didn't.
[[nodiscard]] double SecondsOfPosting(const std::string& dataFile, int employees);

}  // namespace lorvane
