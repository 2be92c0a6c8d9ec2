#pragma once

#include <cstddef>
#include <string>

#include "data/engine/Engine.h"
#include "reports/ReportDesign.h"

namespace lorvane {

/// A list of a report with what stands behind it.
struct FilledList {
  ReportSection section;
  /// "12 payments", or empty for a list that counts nothing.
  std::string count;
};

/// Reads a list's rows, groups them, and adds the sums. Raises what the engine raises.
[[nodiscard]] FilledList FillList(const DesignList& list, EngineConnection& connection,
                                  const FillMoment& moment);

}  // namespace lorvane
