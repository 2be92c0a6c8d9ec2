#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "reports/ReportDesign.h"

namespace lorvane {

// What several designs read from their rows.

/// A column as it stands.
template <std::size_t column>
Value Read(const DataRow& row, const FillMoment& /*moment*/) {
  return row[column];
}

/// An amount, 0 where none was stored.
template <std::size_t column>
Value ReadAmount(const DataRow& row, const FillMoment& moment);

/// Counts the row.
[[nodiscard]] Value CountOne(const DataRow& row, const FillMoment& moment);

/// The assessment in dollars of a payment: its rate per hundred dollars of its assessable amount,
/// to a hundredth of a cent as it was posted.
[[nodiscard]] Value AssessmentOf(const Value& rate, const Value& assessable);

/// What stands for a payee whose record is gone.
inline constexpr const char* kNotOnFile = "(not on file)";

/// "Name (Id 6)": a payee as a group's heading tells him.
[[nodiscard]] std::string PayeeHeading(const std::string& name, const Value& id);

/// The method's sentence on how assessments are made.
inline constexpr const char* kAssessmentMethod =
    "Assessment is the rate for each $100 times the assessable amount. It is worked out for each "
    "payment to a hundredth of a cent, added up, and rounded to cents only where it is shown.";

[[nodiscard]] Value AmountOrNone(const Value& value);

template <std::size_t column>
Value ReadAmount(const DataRow& row, const FillMoment& /*moment*/) {
  return AmountOrNone(row[column]);
}

}  // namespace lorvane
