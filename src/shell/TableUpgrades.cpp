#include "shell/TableUpgrades.h"

#include "data/cAppUpdates.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"

namespace lorvane {
namespace {

void CheckTable(ScreenContext context, bool (cAppUpdates::*check)(), bool (cAppUpdates::*add)()) {
  context.services.SetPointer(pointer::kHourglass);
  cAppUpdates updates(*context.session.gDataConn);
  bool told = false;
  updates.OnError = [&](const RuntimeError& error) {
    ShowError(context, error, box::kExclamation);
    told = true;
  };
  // A counter that only couldn't be read would get a second one beside it.
  if (!(updates.*check)() && !told) {
    (updates.*add)();
  }
  context.services.SetPointer(pointer::kDefault);
}

}  // namespace

std::string VerifyCompanyTables(ScreenContext context) {
  const DataConnection& connection = *context.session.gDataConn;
  cAppUpdates updates(connection);
  for (const char* table : {"tblIndustries", "tblSubRemittance", "tblEmpRemittance"}) {
    if (!updates.VerifyTables(connection.DataSource, table)) {
      return table;
    }
  }
  return {};
}

void CheckAssetTable(ScreenContext context) {
  CheckTable(context, &cAppUpdates::CheckForAssets, &cAppUpdates::AddAssetTable);
}

void CheckPrincipalTable(ScreenContext context) {
  CheckTable(context, &cAppUpdates::CheckForPrincipals, &cAppUpdates::AddPrincipalTable);
}

}  // namespace lorvane
