#include "people/cSubContractor.h"

#include <algorithm>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/modDataAccess.h"

namespace lorvane {
namespace {

std::string SlotColumns(IndustrySlot slot) {
  return "SubContractId, ContractType, PercentLabour, Name, " + SlotName("PayDate", slot) + ", " +
         SlotName("Amount", slot) + ", " + SlotName("AssessAmt", slot) + ", RemittPay, " +
         SlotName("Ind", slot) + ", Expiry";
}

}  // namespace

cSubContractor::cSubContractor()
    : Record({"cSubContractor", "tblSubContract", "SubContractId", "tblSubContract",
              "tblSubContract", "tblSubContract"}) {
  Bind("SubContractId", SubContractId);
  Bind("ContractType", ContractType);
  Bind("PercentLabour", PercentLabour);
  Bind("Name", Name);
  Bind("BusNum", BusNum);
  Bind("Address", Address);
  Bind("City", City);
  Bind("Province", Province);
  Bind("Description", Description);
  Bind("PostCode", PostCode);
  Bind("Expiry", Expiry, Kind::kDate);
  Bind("Phone", Phone);
  Bind("Fax", Fax);
  Bind("Email", Email);
  BindSlots("PayDate", PayDate, Kind::kDate);
  BindSlots("Amount", Amount);
  BindSlots("AssessAmt", AssessAmt);
  Bind("RemittPay", RemittPay);
  BindSlots("Ind", Ind);
}

void cSubContractor::CopyObject(cSubContractor& target) const {
  target.SubContractId = SubContractId;
  target.ContractType = ContractType;
  target.PercentLabour = PercentLabour;
  target.Name = Name;
  target.PayDate = PayDate;
  target.Amount = Amount;
  target.Assessable = Assessable;
  target.AssessAmt = AssessAmt;
  target.Ind = Ind;
}

std::string cSubContractor::SelectText() const {
  const std::optional<IndustrySlot> slot = SlotOfNumber(SelectFilter - kSelectSlot + 1);
  if (SelectFilter == kSelectAll) {
    // AssessAmtB isn't selected and Expiry is selected twice; none of the pay columns is read.
    return "SELECT SubContractId, ContractType, PercentLabour, BusNum, Description, Name, Address, "
           "City, Province, Expiry, Phone, Fax, Email, PostCode, " +
           SlotNames("PayDate") + ", " + SlotNames("Amount") +
           ", AssessAmtA, AssessAmtC, AssessAmtD, AssessAmtE, AssessAmtF, RemittPay, " +
           SlotNames("Ind") + ", Expiry FROM tblSubContract";
  }
  if (SelectFilter == kSelectNames) {
    return "SELECT SubContractId, Name, ContractType,PercentLabour FROM tblSubContract";
  }
  return slot ? "SELECT " + SlotColumns(*slot) + " FROM tblSubContract" : std::string();
}

std::string cSubContractor::RetrieveColumns() const {
  const std::optional<IndustrySlot> slot = SlotOfNumber(SelectFilter - kSelectSlot + 1);
  if (SelectFilter == kSelectAll) {
    return "SubContractId, ContractType, PercentLabour, Name, BusNum, Address, City, Province, "
           "PostCode, Expiry, Phone, Fax, Email, Description, " +
           SlotNames("Ind");
  }
  if (SelectFilter == kSelectNames) {
    return "SubContractId, Name, ContractType";
  }
  return slot ? SlotColumns(*slot) : std::string();
}

std::string cSubContractor::BuildWhere() const {
  switch (WhereFilter) {
    case kWhereKey:
      return WhereKey();
    case kWhereName:
      return " WHERE Name = " + QuoteText(Name);
    case kWhereNameBegins:
      return " WHERE Name LIKE " + QuoteText(Name + "%");
    default:
      break;
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(WhereFilter - kWhereSlot + 1);
  return slot ? " WHERE " + SlotName("Ind", *slot) + " = -1" : std::string();
}

std::string cSubContractor::BuildOrderBy() const {
  switch (OrderByFilter) {
    case kOrderByKey:
      return " ORDER BY SubContractId";
    case kOrderByKeyDescending:
      return " ORDER BY SubContractId DESC";
    case kOrderByName:
      return " ORDER BY Name";
    case kOrderByNameDescending:
      return " ORDER BY Name DESC";
    case kOrderByContractType:
      return " ORDER BY ContractType";
    default:
      return {};
  }
}

std::string cSubContractor::InsertText() const {
  return InsertOf(
      "SubContractId, ContractType, PercentLabour, Name, Address, City, Province, PostCode, "
      "Expiry, Phone, Fax, Email, BusNum, Description," +
      SlotNames("Ind"));
}

std::string cSubContractor::UpdateText() const {
  if (UpdateFilter == 0) {
    return UpdateOf(
               "ContractType, PercentLabour, Description, Name, BusNum, Address, City, Province, "
               "PostCode, Expiry, Phone, Fax, Email, " +
               SlotNames("Ind")) +
           WhereKey();
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(UpdateFilter);
  return slot ? UpdateOf(SlotName("Amount", *slot) + ", " + SlotName("AssessAmt", *slot)) +
                    WhereKey()
              : std::string();
}

std::optional<Record::SchemaRepair> cSubContractor::Repair() const {
  return SchemaRepair{error_number::kEngineUnknownColumn, "SELECT Expiry FROM tblSubContract",
                      &cAppUpdates::AddSubConFields};
}

bool cSubContractor::ValidateRecord() {
  ClearInfo();
  // As on employees: comparisons that never hold stand in the place of the two sentences.
  if (Trim(Name).empty() || Trim(ContractType).empty()) {
    infoMsg_ = "False";
  }
  if (std::none_of(Ind.begin(), Ind.end(), [](bool serves) { return serves; })) {
    infoMsg_ += " Please assign an industry.";
  }
  return infoMsg_.empty();
}

}  // namespace lorvane
