#include "payments/EmployeeList.h"

#include "basic/Money.h"
#include "basic/Number.h"
#include "payments/rules/AssessmentRules.h"

namespace lorvane {

EmployeeList::EmployeeList(DataConnection& connection) { employee_.SetDataConnection(&connection); }

const PayeeList::Words& EmployeeList::Texts() const {
  static constexpr Words kWords{
      "Employee",
      "Please wait...loading employees.",
      "Number of employees assigned to this industry: ",
      "Please enter the name of the employee you wish to\r\nfind. (i.e. Doe, Jane)",
  };
  return kWords;
}

std::vector<ListView::ViewColumn> EmployeeList::Columns() const {
  return {{"ID", 0, ListView::Alignment::kLeft},
          {"Name", 3000, ListView::Alignment::kLeft},
          {"Acc. Wages", 1800, ListView::Alignment::kRight},
          {"Last Payment", 1800, ListView::Alignment::kRight},
          {"Max. Contribution", 2250, ListView::Alignment::kRight},
          {"Last Assessment", 1800, ListView::Alignment::kRight}};
}

std::vector<ListView::Row> EmployeeList::ReadRows(IndustrySlot slot) {
  employee_.SelectFilter = cEmployee::kSelectSlot + NumberOf(slot) - 1;
  employee_.WhereFilter = cEmployee::kWhereSlot + NumberOf(slot) - 1;
  std::vector<ListView::Row> rows;
  if (employee_.OpenRecordset()) {
    do {
      rows.push_back({{std::to_string(employee_.EmployeeId),
                       employee_.LastName + ", " + employee_.FirstName + " " + employee_.Initial,
                       Money(employee_.AccWages), Money(employee_.Amount[slot]),
                       Money(employee_.MaxContrib), Money(employee_.AssessAmt[slot])},
                      false});
    } while (employee_.MoveNext());
    employee_.CloseRecordset();
  }
  return rows;
}

bool EmployeeList::Enter(ListView& list, int row, const std::string& amountText) {
  PaymentEntry entry =
      EntryEmployee(list.Cell(row, kAccWagesPlace), list.Cell(row, kMaxContribPlace), amountText);
  list.SetCell(row, kPaymentPlace, std::move(entry.texts.payment));
  list.SetCell(row, kAssessablePlace, std::move(entry.texts.assessable));
  return entry.beep;
}

void EmployeeList::SaveRow(const ListView& list, int row, IndustrySlot slot) {
  employee_.EmployeeId = ToLong(list.Cell(row, 0));
  employee_.AccWages = ToDouble(list.Cell(row, kAccWagesPlace));
  employee_.Amount[slot] = ToDouble(list.Cell(row, kPaymentPlace));
  employee_.AssessAmt[slot] = ToDouble(list.Cell(row, kAssessablePlace));
  employee_.UpdateFilter = NumberOf(slot);
  employee_.Update();
}

void EmployeeList::ReadBack(ListView& list, int row, IndustrySlot slot) {
  employee_.SelectFilter = cEmployee::kSelectSlot + NumberOf(slot) - 1;
  employee_.WhereFilter = cEmployee::kWhereKey;
  employee_.EmployeeId = ToLong(list.Cell(row, 0));
  if (employee_.Find()) {
    // The initial, which a loaded list shows, isn't brought back.
    list.SetCell(row, 1, employee_.LastName + ", " + employee_.FirstName);
    list.SetCell(row, kAccWagesPlace, Money(employee_.AccWages));
    list.SetCell(row, kPaymentPlace, Money(employee_.Amount[slot]));
    list.SetCell(row, kMaxContribPlace, Money(employee_.MaxContrib));
    list.SetCell(row, kAssessablePlace, Money(employee_.AssessAmt[slot]));
  }
}

}  // namespace lorvane
