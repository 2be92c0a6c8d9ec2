#pragma once

#include <cstdint>
#include <string>

#include "data/Record.h"

namespace lorvane {

/// An owner, partner or officer of the company, whom the employer update asks for: the record of
/// tblPrincipals. Nothing is validated.
class cPrincipals : public Record {
 public:
  // Values of SelectFilter, WhereFilter and OrderByFilter.
  static constexpr std::int32_t kSelectAll = 0;
  static constexpr std::int32_t kSelectNames = 1;
  static constexpr std::int32_t kWhereKey = 1;
  static constexpr std::int32_t kWhereLastName = 2;
  static constexpr std::int32_t kOrderByKey = 1;
  static constexpr std::int32_t kOrderByLastName = 3;
  static constexpr std::int32_t kOrderByLastNameDescending = 4;

  cPrincipals();

  using Record::AddNew;
  using Record::Delete;
  using Record::Update;

  std::int32_t PrincipalId = 0;
  std::string LastName;
  std::string FirstName;
  std::string Title;
  std::string Address;
  std::string City;
  std::string Province;
  std::string PostalCode;
  std::string Sin;
  /// A date as text; what is no date is written as none.
  std::string BirthDate;
  std::string WorkPhone;
  std::string CellPhone;
  std::string HomePhone;
  std::string FaxPhone;

 protected:
  [[nodiscard]] std::string SelectText() const override;
  [[nodiscard]] std::string RetrieveColumns() const override;
  [[nodiscard]] std::string BuildWhere() const override;
  [[nodiscard]] std::string BuildOrderBy() const override;
  [[nodiscard]] const char* DeleteVerb() const override { return "DELETE * FROM "; }
  [[nodiscard]] std::string InsertText() const override;
  [[nodiscard]] std::string UpdateText() const override;
};

}  // namespace lorvane
