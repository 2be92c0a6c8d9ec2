#pragma once

#include <string>
#include <vector>

#include "screen/Session.h"

namespace lorvane {

// Each check gives what it found wrong, a sentence for each finding; nothing is changed.

/// The section of the configuration file that payments rely on: its keys by their place, and values
/// that can be read.
[[nodiscard]] std::vector<std::string> CheckAssessmentSettings(const Session& session);

struct CompanyFindings {
  std::vector<std::string> sentences;
  /// Whether the file is undamaged and every table and column is there, as the books need them.
  bool tablesAreWhole = false;
};

/// The whole company: the data file's integrity, its tables and columns, its key counters, and the
/// configuration file. The company is open. Raises what the engine raises.
[[nodiscard]] CompanyFindings CheckCompany(const Session& session);

}  // namespace lorvane
