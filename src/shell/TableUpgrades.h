#pragma once

#include <string>

#include "screen/ScreenContext.h"

namespace lorvane {

// What opening a company does to the data file of an earlier release.

/// Brings the tables that have changed their shape up to date, one after the other. Gives the name
/// of the first that couldn't be, or has a shape that nobody knows; empty when all are fine.
[[nodiscard]] std::string VerifyCompanyTables(ScreenContext context);

/// Adds tblAssets, or tblPrincipals, to the open company when its key counter is missing. An error
/// of the look at the counter is shown, one of the addition passed over.
void CheckAssetTable(ScreenContext context);
void CheckPrincipalTable(ScreenContext context);

}  // namespace lorvane
