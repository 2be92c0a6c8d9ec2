#pragma once

#include <string>

#include "data/DataConnection.h"
#include "reports/ReportDocument.h"

namespace lorvane {

/// Which scratch table a remittance listing is made from.
enum class RemittancePayees { kEmployees, kSubContractors };

/// The filled scratch table as a listing by payee: each payment with its amount, assessable amount,
/// rate and assessment, subtotals by payee and a total. Sums are made in fixed point. Title and
/// headings are the caller's. Raises what the engine raises.
[[nodiscard]] ReportDocument RemittanceReport(const DataConnection& connection,
                                              RemittancePayees payees);

}  // namespace lorvane
