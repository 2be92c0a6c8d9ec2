#include "payments/SubContractorList.h"

#include "basic/Money.h"
#include "basic/Number.h"
#include "payments/rules/AssessmentRules.h"

namespace lorvane {

SubContractorList::SubContractorList(DataConnection& connection) {
  subContractor_.SetDataConnection(&connection);
}

const PayeeList::Words& SubContractorList::Texts() const {
  static constexpr Words kWords{
      "Sub-Contractor",
      "Please wait...loading sub-contractors.",
      "Number of sub-contractors assigned to this industry: ",
      "Please enter the full name of the sub-contractor\r\nyou wish to find.",
  };
  return kWords;
}

std::vector<ListView::ViewColumn> SubContractorList::Columns() const {
  return {{"ID", 0, ListView::Alignment::kLeft},
          {"Name", 3500, ListView::Alignment::kLeft},
          {"Last Payment", 1800, ListView::Alignment::kRight},
          {"Contract Type", 2200, ListView::Alignment::kRight},
          {"% Labour", 1500, ListView::Alignment::kRight},
          {"Expires", 1800, ListView::Alignment::kRight}};
}

std::vector<ListView::Row> SubContractorList::ReadRows(IndustrySlot slot) {
  subContractor_.SelectFilter = cSubContractor::kSelectSlot + NumberOf(slot) - 1;
  subContractor_.WhereFilter = cSubContractor::kWhereSlot + NumberOf(slot) - 1;
  subContractor_.OrderByFilter = cSubContractor::kOrderByName;
  std::vector<ListView::Row> rows;
  if (subContractor_.OpenRecordset()) {
    do {
      // Only slot A says "none" for a missing date: the other slots ask for null, which a text is
      // never.
      const bool none = slot == IndustrySlot::kA && subContractor_.Expiry.empty();
      rows.push_back({{std::to_string(subContractor_.SubContractId), subContractor_.Name,
                       Money(subContractor_.Amount[slot]), subContractor_.ContractType,
                       PercentText(), none ? "none" : subContractor_.Expiry},
                      false});
    } while (subContractor_.MoveNext());
    subContractor_.CloseRecordset();
  }
  return rows;
}

bool SubContractorList::Enter(ListView& list, int row, const std::string& amountText) {
  PaymentEntry entry = EntrySubContractor(list.Cell(row, kPercentPlace), amountText);
  list.SetCell(row, kPaymentPlace, std::move(entry.texts.payment));
  list.SetCell(row, kAssessablePlace, std::move(entry.texts.assessable));
  return entry.beep;
}

void SubContractorList::SaveRow(const ListView& list, int row, IndustrySlot slot) {
  subContractor_.SubContractId = ToLong(list.Cell(row, 0));
  subContractor_.Amount[slot] = ToDouble(list.Cell(row, kPaymentPlace));
  subContractor_.AssessAmt[slot] = ToDouble(list.Cell(row, kAssessablePlace));
  subContractor_.UpdateFilter = NumberOf(slot);
  subContractor_.Update();
}

void SubContractorList::ReadBack(ListView& list, int row, IndustrySlot slot) {
  subContractor_.SelectFilter = cSubContractor::kSelectSlot + NumberOf(slot) - 1;
  subContractor_.WhereFilter = cSubContractor::kWhereKey;
  subContractor_.SubContractId = ToLong(list.Cell(row, 0));
  if (subContractor_.Find()) {
    list.SetCell(row, 1, subContractor_.Name);
    list.SetCell(row, kPaymentPlace, Money(subContractor_.Amount[slot]));
    list.SetCell(row, kContractTypePlace, subContractor_.ContractType);
    list.SetCell(row, kPercentPlace, PercentText());
    // The amount, not the expiry that a loaded list shows here.
    list.SetCell(row, kAssessablePlace, Money(subContractor_.AssessAmt[slot]));
  }
}

std::string SubContractorList::PercentText() const {
  return ShortestText(subContractor_.PercentLabour) + "%";
}

}  // namespace lorvane
