#include "payments/history/CHistoryEmp.h"

namespace lorvane {

// The failure texts of the key and the insert name the wrong table, and users know them so.
CHistoryEmp::CHistoryEmp()
    : Record({"cHistoryEmp", "tblEmpHistory", "TransactionId", "tblEmployees", "tblEmployees",
              "tblEmpHistory"}) {
  Bind("TransactionId", TransactionId);
  Bind("EmployeeId", EmployeeId);
  Bind("DtCreate", DtCreate, Kind::kDate);
  BindSlots("PayDate", PayDate, Kind::kDate);
  Bind("AssessRt", AssessRt);
  BindSlots("Amount", Amount);
  BindSlots("AssessAmt", AssessAmt);
  Bind("Remittance", Remittance);
  BindSlots("Ind", Ind);
}

std::string CHistoryEmp::SelectText() const {
  if (SelectFilter == kSelectAll) {
    return "SELECT TransactionId, EmployeeId, AccWages, AssessRt, DtCreate, " +
           SlotNames("PayDate") + ", " + SlotNames("Amount") + ", " + SlotNames("Ind") +
           ", Remittance FROM tblEmpHistory";
  }
  if (SelectFilter == kSelectKeys) {
    return "SELECT TransactionId, EmployeeId,  " + SlotNames("PayDate") +
           ", Remittance FROM tblEmpHistory";
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(SelectFilter - kSelectSlot + 1);
  if (!slot) {
    return {};
  }
  // Without a comma between the amount and the flag the amount comes back under the flag's name, so
  // reading the row fails at the amount.
  return "SELECT TransactionId, EmployeeId, " + SlotName("AssessAmt", *slot) +
         ", AccWages, AssessRt, DtCreate, " + SlotName("PayDate", *slot) + ", " +
         SlotName("Amount", *slot) + " " + SlotName("Ind", *slot) +
         ", Remittance FROM tblEmpHistory";
}

std::string CHistoryEmp::RetrieveColumns() const {
  if (SelectFilter == kSelectAll) {
    return "TransactionId, EmployeeId, DtCreate, AssessRt, Remittance, " + SlotNames("PayDate") +
           ", " + SlotNames("Amount") + ", " + SlotNames("Ind");
  }
  if (SelectFilter == kSelectKeys) {
    return "TransactionId, EmployeeId, " + SlotNames("PayDate") + ", Remittance";
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(SelectFilter - kSelectSlot + 1);
  return slot ? "TransactionId, EmployeeId, AssessRt, DtCreate, " + SlotName("Ind", *slot) + ", " +
                    SlotName("PayDate", *slot) + ", " + SlotName("Amount", *slot)
              : std::string();
}

std::string CHistoryEmp::BuildWhere() const {
  if (WhereFilter == kWherePerson) {
    return " WHERE EmployeeId = " + ValueOf("EmployeeId");
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(WhereFilter);
  return slot ? " WHERE " + SlotName("Ind", *slot) + " = -1" : std::string();
}

std::string CHistoryEmp::BuildOrderBy() const {
  switch (OrderByFilter) {
    case 0:
      return " ORDER BY TransactionId";
    case 1:
      return " ORDER BY EmployeeId";
    case 2:
      return " ORDER BY LastName";
    default:
      return {};
  }
}

std::string CHistoryEmp::InsertText() const {
  if (SelectFilter == kSelectAll) {
    // 24 columns and 23 values: the accumulated wages have none.
    const std::string slots =
        SlotNames("PayDate") + ", " + SlotNames("Amount") + ", " + SlotNames("Ind");
    return InsertOf("TransactionId, EmployeeId, AccWages, DtCreate, AssessRt, Remittance," + slots,
                    "TransactionId, EmployeeId, DtCreate, AssessRt, Remittance, " + slots, ")");
  }
  const std::optional<IndustrySlot> slot = SlotOfNumber(SelectFilter - kSelectSlot + 1);
  return slot ? InsertOf("TransactionId, EmployeeId, DtCreate, AssessRt, Remittance, " +
                         SlotName("PayDate", *slot) + ", " + SlotName("Amount", *slot) + ", " +
                         SlotName("AssessAmt", *slot) + ", " + SlotName("Ind", *slot))
              : std::string();
}

std::string CHistoryEmp::UpdateText() const {
  if (UpdateFilter != 0) {
    return {};
  }
  return UpdateOf("tblHistoryEmp", "EmployeeId, AssessRt, DtCreate, Remittance, " +
                                       SlotNames("PayDate") + ", " + SlotNames("Amount") + ", " +
                                       SlotNames("Ind")) +
         WhereKey();
}

}  // namespace lorvane
