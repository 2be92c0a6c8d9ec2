#include "people/cAssessable.h"

#include "basic/RuntimeError.h"
#include "data/modDataAccess.h"

namespace lorvane {
namespace {

constexpr const char* kColumns = "ProvId, Description, AssessLabour, Standard";

}  // namespace

// The failure text of the key names the table in the plural, unlike every other class.
cAssessable::cAssessable()
    : Record({"cAssessable", "tblAssessable", "AssessId", "tblAssessables", "tblAssessable",
              "tblAssessable"}) {
  Bind("AssessId", AssessId);
  Bind("ProvId", ProvId);
  Bind("Description", Description);
  Bind("AssessLabour", AssessableLabour);
  Bind("Standard", Standard);
}

void cAssessable::CopyObject(cAssessable& target) const {
  target.AssessId = AssessId;
  target.Description = Description;
  target.AssessableLabour = AssessableLabour;
  target.Standard = Standard;
}

std::string cAssessable::SelectText() const {
  const std::string columns = RetrieveColumns();
  return columns.empty() ? columns : "SELECT " + columns + " FROM tblAssessable";
}

std::string cAssessable::RetrieveColumns() const {
  return SelectFilter == 0 ? std::string("AssessId, ") + kColumns : std::string();
}

std::string cAssessable::BuildWhere() const {
  switch (WhereFilter) {
    case kWhereKey:
      return WhereKey();
    case kWhereOffered:
      return " WHERE Standard = -1 OR ProvId = " + QuoteText(ProvId);
    default:
      return {};
  }
}

std::string cAssessable::BuildOrderBy() const {
  switch (OrderByFilter) {
    case kOrderByKey:
      return " ORDER BY AssessId";
    case kOrderByDescription:
      return " ORDER BY Description";
    default:
      return {};
  }
}

std::string cAssessable::InsertText() const {
  return InsertOf(std::string("AssessId, ") + kColumns, ") ");
}

std::string cAssessable::UpdateText() const {
  return UpdateFilter == 0 ? UpdateOf(kColumns) + WhereKey() : std::string();
}

std::optional<Record::SchemaRepair> cAssessable::Repair() const {
  return SchemaRepair{error_number::kEngineUnknownTable, "SELECT AssessId FROM tblAssessable",
                      &cAppUpdates::AddAssessableTable};
}

}  // namespace lorvane
