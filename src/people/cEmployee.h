#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "basic/IndustrySlot.h"
#include "data/Record.h"

namespace lorvane {

/// An employee: a worker on whose wages the employer pays an assessment. The record of
/// tblEmployees.
///
/// Dates are texts; "1/1/1899" stands for no date of birth. Amounts are dollars.
class cEmployee : public Record {
 public:
  // Values of SelectFilter; kSelectSlot plus the slot's number less 1 are the slot lists.
  static constexpr std::int32_t kSelectAll = 0;
  static constexpr std::int32_t kSelectNames = 1;
  static constexpr std::int32_t kSelectSlot = 2;
  // Values of WhereFilter; kWhereSlot plus the slot's index are the active employees of a slot.
  static constexpr std::int32_t kWhereKey = 1;
  static constexpr std::int32_t kWhereLastName = 2;
  static constexpr std::int32_t kWhereLastNameBegins = 3;
  static constexpr std::int32_t kWhereSin = 4;
  static constexpr std::int32_t kWhereSlot = 5;
  // Values of OrderByFilter.
  static constexpr std::int32_t kOrderByKey = 1;
  static constexpr std::int32_t kOrderByKeyDescending = 2;
  static constexpr std::int32_t kOrderByLastName = 3;
  static constexpr std::int32_t kOrderByLastNameDescending = 4;

  cEmployee();

  /// AccWages and the columns of the slots stay null in a new row.
  using Record::AddNew;
  /// Deletes what WhereFilter chooses; with 0, every employee.
  using Record::Delete;
  /// With UpdateFilter 0 the person, but for Initial, which can't be changed after AddNew; with a
  /// slot's number AccWages and that slot's two amounts.
  using Record::Update;

  /// Copies every property but Birth; filters and state stay.
  void CopyObject(cEmployee& target) const;

  std::int32_t EmployeeId = 0;
  std::string LastName;
  std::string Initial;
  std::string FirstName;
  /// Social Insurance Number as typed.
  std::string Sin;
  std::string Street;
  std::string City;
  std::string Province;
  std::string PostalCode;
  std::string HPhone;
  std::string CPhone;
  std::string WPhone;
  std::string Mailing;
  /// "Male", "Female" or empty.
  std::string Gender;
  std::string Birth;
  std::string Health;
  std::string Occupation;
  PerSlot<std::string> PayDate;
  /// The saved payment that isn't posted yet.
  PerSlot<double> Amount;
  /// Wages of the current year so far, all industries together.
  double AccWages = 0;
  /// The ceiling of the wages on which assessment is paid.
  double MaxContrib = 0;
  /// The assessable part of Amount.
  PerSlot<double> AssessAmt;
  /// Takes the employee out of the payment lists.
  bool Inactive = false;
  /// The employee works in that industry; at least one must be set.
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
