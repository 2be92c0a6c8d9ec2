#pragma once

#include "basic/Date.h"
#include "data/DataConnection.h"
#include "screen/Lists.h"

namespace lorvane {

/// Remarks behind the sub-contractors of a list, whose numbers are their keys, when the clearance
/// letter has expired or expires within 30 days of today. A payment made without a valid letter can
/// make the employer liable for the sub-contractor's own assessment.
///
/// Where the letters can't be read, nobody gets a remark.
void RemarkOnClearances(ListBox& list, DataConnection& connection, const DateTime& today);

}  // namespace lorvane
