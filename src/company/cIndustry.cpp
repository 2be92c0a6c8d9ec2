#include "company/cIndustry.h"

namespace lorvane {

cIndustry::cIndustry()
    : Record(
          {"cIndustry", "tblIndustries", "Id", "tblIndustries", "tblIndustries", "tblIndustries"}) {
  Bind("Id", id_);
  BindSlots("Ind", Ind);
  BindSlots("Desc", Desc);
  BindSlots("Identifier", Identifier);
  BindSlots("Rate", Rate, Kind::kRate);
  BindSlots("Sic", Sic);
}

std::string cIndustry::SelectText() const {
  const std::string columns = RetrieveColumns();
  return columns.empty() ? columns : "SELECT " + columns + " FROM tblIndustries";
}

std::string cIndustry::RetrieveColumns() const {
  switch (SelectFilter) {
    case 0:
      return "Id, " + SlotNames("Ind") + ", " + SlotNames("Desc") + ", " + SlotNames("Identifier") +
             ", " + SlotNames("Rate") + ", " + SlotNames("Sic");
    case kSelectRates:
      return SlotNames("Sic") + ", " + SlotNames("Rate");
    default:
      return {};
  }
}

// No WHERE: the table has one row.
std::string cIndustry::UpdateText() const {
  if (UpdateFilter == kUpdateRates) {
    return UpdateOf(SlotNames("Rate"));
  }
  return UpdateOf(SlotNames("Ind") + ", " + SlotNames("Desc") + ", " + SlotNames("Identifier") +
                  ", " + SlotNames("Rate") + ", " + SlotNames("Sic"));
}

}  // namespace lorvane
