#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "import/ImportFromExcel.h"

namespace lorvane {

/// "1 row is", "3 rows are": the number with the words that go with it.
[[nodiscard]] std::string Counted(std::size_t count, std::string_view one, std::string_view more);

/// What an import passed over and what was refused, as sentences; empty when there is nothing to
/// tell.
[[nodiscard]] std::string DescribeOutcome(const ImportOutcome& outcome);

/// The refused rows as a CSV file that spreadsheet programs read: a heading, then a row each with
/// its number and the reason.
[[nodiscard]] std::string RefusedReport(const std::vector<RefusedRow>& refused);

}  // namespace lorvane
