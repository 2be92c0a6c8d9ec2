#pragma once

#include "reports/ReportDesign.h"

namespace lorvane {

// The designs of all reports. Their named texts, besides those of the update: company,
// businessNumber, period, industry, address, reportingYear and legalName.

/// Employee remittance of one industry, and of all.
[[nodiscard]] const ReportDesign& crptEmp();
[[nodiscard]] const ReportDesign& crpEmpIndAll();
/// Sub-contractor remittance of one industry, and of all.
[[nodiscard]] const ReportDesign& crptSub();
[[nodiscard]] const ReportDesign& crpSubIndAll();

/// The year's contract payments by sub-contractor, and by quarter.
[[nodiscard]] const ReportDesign& crpAnnualSub();
[[nodiscard]] const ReportDesign& crpQSubSumm();

/// What the employer tells the board each year. Its marks hold kChangeMark until they are blanked.
[[nodiscard]] const ReportDesign& crptEmployerYEUpdate();
inline constexpr const char* kChangeMark = "*";

[[nodiscard]] const ReportDesign& crptAssetLog();
[[nodiscard]] const ReportDesign& crptPrincipals();
/// Clearance letters by the day on which they expire.
[[nodiscard]] const ReportDesign& crptClearanceExpiry();

}  // namespace lorvane
