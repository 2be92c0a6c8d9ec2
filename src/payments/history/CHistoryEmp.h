#pragma once

#include <cstdint>
#include <string>

#include "basic/IndustrySlot.h"
#include "data/Record.h"

namespace lorvane {

/// A posted payment of an employee: a row of tblEmpHistory, which fills the columns of one slot.
///
/// SelectFilter shapes the SELECT, what is read, and the INSERT too. Dates are texts, amounts
/// dollars. The slot lists can be inserted but not read: their statement lacks a comma, and stays
/// so.
class CHistoryEmp : public Record {
 public:
  // Values of SelectFilter; kSelectSlot plus the slot's number less 1 are the slots.
  static constexpr std::int32_t kSelectAll = 0;
  static constexpr std::int32_t kSelectKeys = 1;
  static constexpr std::int32_t kSelectSlot = 2;
  // Values of WhereFilter; 1 to 6 are the rows of a slot.
  static constexpr std::int32_t kWherePerson = 0;

  CHistoryEmp();

  using Record::AddNew;
  using Record::Delete;
  /// Names a table that isn't there, so it always fails.
  using Record::Update;

  std::int32_t TransactionId = 0;
  std::int32_t EmployeeId = 0;
  /// When the row was posted.
  std::string DtCreate;
  PerSlot<std::string> PayDate;
  /// The rate used, in dollars per hundred.
  double AssessRt = 0;
  PerSlot<double> Amount;
  PerSlot<double> AssessAmt;
  /// The assessment of the row in dollars.
  double Remittance = 0;
  bool Inactive = false;
  PerSlot<bool> Ind;

 protected:
  [[nodiscard]] std::string SelectText() const override;
  [[nodiscard]] std::string RetrieveColumns() const override;
  [[nodiscard]] std::string BuildWhere() const override;
  [[nodiscard]] std::string BuildOrderBy() const override;
  [[nodiscard]] std::string InsertText() const override;
  [[nodiscard]] std::string UpdateText() const override;
};

}  // namespace lorvane
