#pragma once

#include <string>
#include <vector>

#include "screen/Session.h"

namespace lorvane {

// Each check gives what it found wrong, a sentence for each finding; nothing is changed.

/// The section of the configuration file that payments rely on: its keys by their place, and values
/// that can be read.
[[nodiscard]] std::vector<std::string> CheckAssessmentSettings(const Session& session);

/// The whole company: the data file's integrity, its tables and columns, its key counters, and the
/// configuration file. The company is open. Raises what the engine raises.
[[nodiscard]] std::vector<std::string> CheckCompany(const Session& session);

}  // namespace lorvane
