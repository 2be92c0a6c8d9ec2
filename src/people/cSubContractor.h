#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "basic/IndustrySlot.h"
#include "data/Record.h"

namespace lorvane {

/// A sub-contractor: a business that the employer pays for work, assessed on the labour part of
/// each payment. The record of tblSubContract.
///
/// Dates are texts; "1/1/1899" stands for no expiry. Amounts are dollars, percentages whole
/// numbers.
class cSubContractor : public Record {
 public:
  // Values of SelectFilter; kSelectSlot plus the slot's number less 1 are the slot lists.
  static constexpr std::int32_t kSelectAll = 0;
  static constexpr std::int32_t kSelectNames = 1;
  static constexpr std::int32_t kSelectSlot = 2;
  // Values of WhereFilter; kWhereSlot plus the slot's index are the sub-contractors of a slot.
  // There is no search by SIN, so the slots begin one earlier than an employee's.
  static constexpr std::int32_t kWhereKey = 1;
  static constexpr std::int32_t kWhereName = 2;
  static constexpr std::int32_t kWhereNameBegins = 3;
  static constexpr std::int32_t kWhereSlot = 4;
  // Values of OrderByFilter.
  static constexpr std::int32_t kOrderByKey = 1;
  static constexpr std::int32_t kOrderByKeyDescending = 2;
  static constexpr std::int32_t kOrderByName = 3;
  static constexpr std::int32_t kOrderByNameDescending = 4;
  static constexpr std::int32_t kOrderByContractType = 5;

  cSubContractor();

  /// The columns of the slots and RemittPay stay null in a new row.
  using Record::AddNew;
  /// Deletes what WhereFilter chooses; with 0, every sub-contractor.
  using Record::Delete;
  /// With UpdateFilter 0 the business; with a slot's number that slot's two amounts.
  using Record::Update;

  /// Copies key, contract, name, amounts and flags; not the address, contacts, expiry or RemittPay.
  void CopyObject(cSubContractor& target) const;

  std::int32_t SubContractId = 0;
  /// The description of a contract type, copied as text. Required.
  std::string ContractType;
  /// The part of a payment that counts as labour, in per cent: 100, 50, 25.
  double PercentLabour = 0;
  std::string Name;
  /// Nine-digit business number or SIN, as typed.
  std::string BusNum;
  std::string Address;
  std::string City;
  std::string Province;
  std::string Description;
  std::string PostCode;
  /// When the clearance letter expires.
  std::string Expiry;
  std::string Phone;
  std::string Fax;
  std::string Email;
  PerSlot<std::string> PayDate;
  /// The saved payment that isn't posted yet.
  PerSlot<double> Amount;
  double Assessable = 0;
  /// The assessable part of Amount.
  PerSlot<double> AssessAmt;
  double RemittPay = 0;
  /// The sub-contractor serves that industry; at least one must be set.
  PerSlot<bool> Ind;

 protected:
  [[nodiscard]] std::string SelectText() const override;
  [[nodiscard]] std::string RetrieveColumns() const override;
  [[nodiscard]] std::string BuildWhere() const override;
  [[nodiscard]] std::string BuildOrderBy() const override;
  [[nodiscard]] std::string InsertText() const override;
  [[nodiscard]] std::string UpdateText() const override;
  [[nodiscard]] std::optional<SchemaRepair> Repair() const override;
  bool ValidateRecord() override;
};

}  // namespace lorvane
