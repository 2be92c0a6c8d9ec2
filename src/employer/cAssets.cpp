#include "employer/cAssets.h"

#include "data/modDataAccess.h"

namespace lorvane {
namespace {

constexpr const char* kKey = "AssetId, ";
constexpr const char* kColumns =
    "Description, SerialNo, LicenseNo, IsVehicle, VehicleMake, VehicleModel, VehicleYear, "
    "VehicleColour";

}  // namespace

cAssets::cAssets()
    : Record({"cAssets", "tblAssets", "AssetId", "tblAssets", "tblAssets", "tblAssets"}) {
  Bind("AssetId", AssetId);
  Bind("Description", Description);
  Bind("SerialNo", SerialNo);
  Bind("LicenseNo", LicenseNo);
  Bind("IsVehicle", IsVehicle);
  Bind("VehicleMake", VehicleMake);
  Bind("VehicleModel", VehicleModel);
  Bind("VehicleColour", VehicleColour);
  Bind("VehicleYear", VehicleYear);
}

std::string cAssets::SelectText() const {
  const std::string columns = RetrieveColumns();
  return columns.empty() ? columns : "SELECT " + columns + " FROM tblAssets";
}

std::string cAssets::RetrieveColumns() const {
  switch (SelectFilter) {
    case kSelectAll:
      return std::string(kKey) + kColumns;
    case kSelectNames:
      return std::string(kKey) + "Description";
    default:
      return {};
  }
}

std::string cAssets::BuildWhere() const {
  switch (WhereFilter) {
    case kWhereKey:
      return WhereKey();
    case kWhereDescription:
      return " WHERE Description = " + QuoteText(Description);
    default:
      return {};
  }
}

std::string cAssets::BuildOrderBy() const {
  switch (OrderByFilter) {
    case kOrderByKey:
      return " ORDER BY AssetId";
    case kOrderByDescription:
      return " ORDER BY Description ASC";
    default:
      return {};
  }
}

std::string cAssets::InsertText() const { return InsertOf(std::string(kKey) + kColumns); }

std::string cAssets::UpdateText() const { return UpdateOf(kColumns) + WhereKey(); }

}  // namespace lorvane
