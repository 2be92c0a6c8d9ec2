#pragma once

#include <string>
#include <vector>

#include "screen/Session.h"

namespace lorvane {

/// Whether the books of the open company agree with one another: the assessment of each payment
/// with its rate and assessable amount, assessable amounts with the ceilings, accumulated wages
/// with the year's payments, dates with the current year, payments with the people on file, and the
/// scratch tables, which are empty at rest. Gives a sentence for each finding, with the row named,
/// and changes nothing. The tables have their full shape. Raises what the engine raises.
[[nodiscard]] std::vector<std::string> CheckBooks(const Session& session);

}  // namespace lorvane
