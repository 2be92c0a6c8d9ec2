#include "payments/history/cHistorySubCon.h"

namespace lorvane {
namespace {

std::string SlotAmounts(IndustrySlot slot, const std::string& assessAmt) {
  return SlotName("PayDate", slot) + ", " + SlotName("Amount", slot) + ", PercentLabour, " +
         assessAmt + ", Rate, Remittance, ";
}

std::string AllColumns() {
  return SlotNames("PayDate") + ", " + SlotNames("Amount") + ", PercentLabour, " +
         SlotNames("AssessAmt") + ", Rate, Remittance, " + SlotNames("Ind");
}

}  // namespace

// The failure text of the insert names the wrong table, and users know it so.
cHistorySubCon::cHistorySubCon()
    : Record({"cSubContractorHistory", "tblSubHistory", "TransactionId", "tblSubHistory",
              "tblSubContract", "tblSubHistory"}) {
  Bind("SubContractId", SubContractId);
  Bind("TransactionId", TransactionId);
  Bind("Name", Name);
  BindSlots("PayDate", PayDate, Kind::kDate);
  Bind("PercentLabour", PercentLabour, Kind::kNumber);
  BindSlots("Amount", Amount);
  BindSlots("AssessAmt", AssessAmt);
  Bind("AssessAmt", assessAmtWithoutLetter_);
  Bind("Rate", Rate, Kind::kNumber);
  Bind("Remittance", Remittance);
  BindSlots("Ind", Ind);
  Bind("DtCreate", Create, Kind::kDate);
}

std::string cHistorySubCon::SelectText() const {
  if (SelectFilter == kSelectAll || SelectFilter == kSelectKeys) {
    return "SELECT " + RetrieveColumns() + " FROM tblSubHistory";
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(SelectFilter - kSelectSlot + 1);
  if (!slot) {
    return {};
  }
  // The key is misspelt for slots D, E and F, so these statements fail at the data file.
  const char* key = *slot >= IndustrySlot::kD ? "TrasactionId" : "TransactionId";
  return std::string("SELECT ") + key + ", SubContractId, " +
         SlotAmounts(*slot, SlotName("AssessAmt", *slot)) + "dtCreate, " + SlotName("Ind", *slot) +
         " FROM tblSubHistory";
}

std::string cHistorySubCon::RetrieveColumns() const {
  if (SelectFilter == kSelectAll) {
    return "TransactionId, SubContractId, Name, " + AllColumns() + ", DtCreate";
  }
  if (SelectFilter == kSelectKeys) {
    return "TransactionId, SubContractId, " + SlotNames("PayDate") + ", Remittance";
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(SelectFilter - kSelectSlot + 1);
  // The assessable amount is looked for without its letter, where the reading of a row fails.
  return slot ? "TransactionId, SubContractId, " + SlotAmounts(*slot, "AssessAmt") +
                    SlotName("Ind", *slot) + ", DtCreate"
              : std::string();
}

std::string cHistorySubCon::BuildWhere() const {
  if (WhereFilter == kWherePerson) {
    return " WHERE SubContractId = " + ValueOf("SubContractId");
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(WhereFilter);
  if (!slot) {
    return {};
  }
  // Slot A's text ends in a blank.
  return " WHERE " + SlotName("Ind", *slot) + (*slot == IndustrySlot::kA ? " = -1 " : " = -1");
}

std::string cHistorySubCon::BuildOrderBy() const {
  switch (OrderByFilter) {
    case 0:
      return " ORDER BY TransactionId DESC";
    case 1:
      return " ORDER BY SubContractId";
    case 2:
      return " ORDER BY Name";
    default:
      return {};
  }
}

std::string cHistorySubCon::InsertText() const {
  if (SelectFilter == kSelectAll) {
    return InsertOf("TransactionId, SubContractId, Name, " + AllColumns() + ", DtCreate");
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(SelectFilter - kSelectSlot + 1);
  return slot ? InsertOf("TransactionId, SubContractId, " +
                         SlotAmounts(*slot, SlotName("AssessAmt", *slot)) + SlotName("Ind", *slot) +
                         ", DtCreate")
              : std::string();
}

std::string cHistorySubCon::UpdateText() const {
  if (UpdateFilter == 0) {
    return UpdateOf("SubContractId, Name, " + AllColumns()) + WhereKey();
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(UpdateFilter);
  return slot
             ? UpdateOf("SubContractId, Name, " + SlotAmounts(*slot, SlotName("AssessAmt", *slot)) +
                        SlotName("Ind", *slot) + ", dtCreate") +
                   WhereKey()
             : std::string();
}

}  // namespace lorvane
