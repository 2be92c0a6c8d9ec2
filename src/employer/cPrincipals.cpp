#include "employer/cPrincipals.h"

#include "data/modDataAccess.h"

namespace lorvane {
namespace {

constexpr const char* kKey = "PrincipalId, ";
constexpr const char* kColumns =
    "LastName, FirstName, Title, Address, City, Province, PostalCode, Sin, BirthDate, WorkPhone, "
    "CellPhone, HomePhone, FaxPhone";

}  // namespace

cPrincipals::cPrincipals()
    : Record({"cPrincipals", "tblPrincipals", "PrincipalId", "tblPrincipals", "tblPrincipals",
              "tblPrincipals"}) {
  Bind("PrincipalId", PrincipalId);
  Bind("LastName", LastName);
  Bind("FirstName", FirstName);
  Bind("Title", Title);
  Bind("Address", Address);
  Bind("City", City);
  Bind("Province", Province);
  Bind("PostalCode", PostalCode);
  Bind("Sin", Sin);
  Bind("BirthDate", BirthDate, Kind::kDate);
  Bind("WorkPhone", WorkPhone);
  Bind("CellPhone", CellPhone);
  Bind("HomePhone", HomePhone);
  Bind("FaxPhone", FaxPhone);
}

std::string cPrincipals::SelectText() const {
  const std::string columns = RetrieveColumns();
  return columns.empty() ? columns : "SELECT " + columns + " FROM tblPrincipals";
}

std::string cPrincipals::RetrieveColumns() const {
  switch (SelectFilter) {
    case kSelectAll:
      return std::string(kKey) + kColumns;
    case kSelectNames:
      return std::string(kKey) + "LastName, FirstName";
    default:
      return {};
  }
}

std::string cPrincipals::BuildWhere() const {
  switch (WhereFilter) {
    case kWhereKey:
      return WhereKey();
    case kWhereLastName:
      return " WHERE LastName = " + QuoteText(LastName);
    default:
      return {};
  }
}

std::string cPrincipals::BuildOrderBy() const {
  switch (OrderByFilter) {
    case kOrderByKey:
      return " ORDER BY PrincipalId";
    case kOrderByLastName:
      return " ORDER BY LastName";
    case kOrderByLastNameDescending:
      return " ORDER BY LastName DESC";
    default:
      return {};
  }
}

std::string cPrincipals::InsertText() const { return InsertOf(std::string(kKey) + kColumns); }

std::string cPrincipals::UpdateText() const { return UpdateOf(kColumns) + WhereKey(); }

}  // namespace lorvane
