#include "people/cEmployee.h"

#include <algorithm>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/modDataAccess.h"

namespace lorvane {
namespace {

constexpr const char* kPerson =
    "EmployeeId, LastName, FirstName, Initial, Sin, Street, City, Province, PostalCode, HPhone, "
    "CPhone, WPhone, Mailing, Birth, Health, Gender, Occupation,";
constexpr const char* kNames = "EmployeeId, LastName, FirstName, Initial";

std::string PersonalColumns(const char* initial, const char* accWages) {
  return std::string("LastName, FirstName, ") + initial +
         "Sin, Street, City, Province, PostalCode, HPhone, CPhone, WPhone, Mailing, Gender, Birth, "
         "Health, Occupation, " +
         accWages + "MaxContrib, Inactive, " + SlotNames("Ind");
}

}  // namespace

cEmployee::cEmployee()
    : Record({"cEmployee", "tblEmployees", "EmployeeId", "tblEmployees", "tblEmployees",
              "tblEmployees"}) {
  Bind("EmployeeId", EmployeeId);
  Bind("LastName", LastName);
  Bind("Initial", Initial);
  Bind("FirstName", FirstName);
  Bind("Sin", Sin);
  Bind("Street", Street);
  Bind("City", City);
  Bind("Province", Province);
  Bind("PostalCode", PostalCode);
  Bind("HPhone", HPhone);
  Bind("CPhone", CPhone);
  Bind("WPhone", WPhone);
  Bind("Mailing", Mailing);
  Bind("Gender", Gender);
  Bind("Birth", Birth, Kind::kDate);
  Bind("Health", Health);
  Bind("Occupation", Occupation);
  BindSlots("PayDate", PayDate, Kind::kDate);
  BindSlots("Amount", Amount);
  Bind("AccWages", AccWages);
  Bind("MaxContrib", MaxContrib);
  BindSlots("AssessAmt", AssessAmt);
  Bind("Inactive", Inactive);
  BindSlots("Ind", Ind);
}

void cEmployee::CopyObject(cEmployee& target) const {
  target.EmployeeId = EmployeeId;
  target.LastName = LastName;
  target.Initial = Initial;
  target.FirstName = FirstName;
  target.Sin = Sin;
  target.Street = Street;
  target.City = City;
  target.Province = Province;
  target.PostalCode = PostalCode;
  target.HPhone = HPhone;
  target.CPhone = CPhone;
  target.WPhone = WPhone;
  target.Mailing = Mailing;
  target.Gender = Gender;
  target.Health = Health;
  target.Occupation = Occupation;
  target.PayDate = PayDate;
  target.Amount = Amount;
  target.AccWages = AccWages;
  target.MaxContrib = MaxContrib;
  target.AssessAmt = AssessAmt;
  target.Inactive = Inactive;
  target.Ind = Ind;
}

std::string cEmployee::SelectText() const {
  const std::string columns = RetrieveColumns();
  return columns.empty() ? columns : "SELECT " + columns + " FROM tblEmployees";
}

std::string cEmployee::RetrieveColumns() const {
  if (SelectFilter == kSelectAll) {
    return std::string(kPerson) + " AccWages, MaxContrib, Inactive, " + SlotNames("Ind");
  }
  if (SelectFilter == kSelectNames) {
    return kNames;
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(SelectFilter - kSelectSlot + 1);
  if (!slot) {
    return {};
  }
  // The text of slot D has a second blank here.
  return std::string(kPerson) + (*slot == IndustrySlot::kD ? "  " : " ") +
         "AccWages, MaxContrib, " + SlotName("PayDate", *slot) + ", " + SlotName("Amount", *slot) +
         ", " + SlotName("AssessAmt", *slot) + ", " + SlotName("Ind", *slot) + ", Inactive";
}

std::string cEmployee::BuildWhere() const {
  switch (WhereFilter) {
    case kWhereKey:
      return WhereKey();
    case kWhereLastName:
      return " WHERE LastName = " + QuoteText(LastName);
    case kWhereLastNameBegins:
      return " WHERE LastName LIKE " + QuoteText(LastName + "%");
    case kWhereSin:
      return " WHERE Sin = " + QuoteText(Sin);
    default:
      break;
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(WhereFilter - kWhereSlot + 1);
  return slot ? " WHERE " + SlotName("Ind", *slot) + " = -1 AND Inactive = 0" : std::string();
}

std::string cEmployee::BuildOrderBy() const {
  switch (OrderByFilter) {
    case kOrderByKey:
      return " ORDER BY EmployeeId";
    case kOrderByKeyDescending:
      return " ORDER BY EmployeeId DESC";
    case kOrderByLastName:
      return " ORDER BY LastName";
    case kOrderByLastNameDescending:
      return " ORDER BY LastName DESC";
    default:
      return {};
  }
}

std::string cEmployee::InsertText() const {
  return InsertOf("EmployeeId, " + PersonalColumns("Initial, ", ""));
}

std::string cEmployee::UpdateText() const {
  if (UpdateFilter == 0) {
    return UpdateOf(PersonalColumns("", "AccWages, ")) + WhereKey();
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(UpdateFilter);
  return slot ? UpdateOf("AccWages, " + SlotName("Amount", *slot) + ", " +
                         SlotName("AssessAmt", *slot)) +
                    WhereKey()
              : std::string();
}

std::optional<Record::SchemaRepair> cEmployee::Repair() const {
  return SchemaRepair{error_number::kEngineUnknownColumn, "SELECT Street FROM tblEmployees",
                      &cAppUpdates::AddEmployeeFields};
}

bool cEmployee::ValidateRecord() {
  ClearInfo();
  // Comparisons that never hold stand in the place of the two sentences on the names: the user
  // reads the word alone.
  if (Trim(LastName).empty() || Trim(FirstName).empty()) {
    infoMsg_ = "False";
  }
  if (std::none_of(Ind.begin(), Ind.end(), [](bool works) { return works; })) {
    infoMsg_ += " Please assign an industry.";
  }
  return infoMsg_.empty();
}

}  // namespace lorvane
