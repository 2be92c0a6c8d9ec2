#pragma once

#include <cstdint>
#include <string>

#include "basic/IndustrySlot.h"
#include "data/Record.h"

namespace lorvane {

/// A posted payment of a sub-contractor: a row of tblSubHistory, which fills the columns of one
/// slot.
///
/// SelectFilter shapes the SELECT, what is read, and the INSERT too. Dates are texts, amounts
/// dollars. The slot lists can be inserted but not read.
class cHistorySubCon : public Record {
 public:
  // Values of SelectFilter; kSelectSlot plus the slot's number less 1 are the slots.
  static constexpr std::int32_t kSelectAll = 0;
  static constexpr std::int32_t kSelectKeys = 1;
  static constexpr std::int32_t kSelectSlot = 2;
  // Values of WhereFilter; 1 to 6 are the rows of a slot.
  static constexpr std::int32_t kWherePerson = 0;

  cHistorySubCon();

  using Record::AddNew;
  using Record::Delete;
  /// With UpdateFilter 0 the whole row, with a slot's number that slot.
  using Record::Update;

  std::int32_t SubContractId = 0;
  std::int32_t TransactionId = 0;
  std::string Name;
  PerSlot<std::string> PayDate;
  /// The labour percentage when the row was posted: a record only.
  double PercentLabour = 0;
  PerSlot<double> Amount;
  PerSlot<double> AssessAmt;
  /// The rate used, in dollars per hundred.
  double Rate = 0;
  /// The assessment of the row in dollars.
  double Remittance = 0;
  PerSlot<bool> Ind;
  /// When the row was posted; the column is DtCreate.
  std::string Create;

 protected:
  [[nodiscard]] std::string SelectText() const override;
  [[nodiscard]] std::string RetrieveColumns() const override;
  [[nodiscard]] std::string BuildWhere() const override;
  [[nodiscard]] std::string BuildOrderBy() const override;
  [[nodiscard]] std::string InsertText() const override;
  [[nodiscard]] std::string UpdateText() const override;

 private:
  double assessAmtWithoutLetter_ = 0;
};

}  // namespace lorvane
