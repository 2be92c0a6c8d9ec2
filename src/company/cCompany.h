#pragma once

#include <cstdint>
#include <string>

#include "data/Record.h"

namespace lorvane {

/// The employer: the record of tblCompany, one row in practice. There is no selection: a caller who
/// wants one row takes the first.
class cCompany : public Record {
 public:
  cCompany();

  using Record::AddNew;
  /// Deletes every row.
  using Record::Delete;
  using Record::Update;

  std::int32_t CompanyId = 0;
  std::string BusNum;
  std::string PrgIdentifier;
  std::string LegalName;
  std::string OpAs;
  std::string Address;
  std::string City;
  std::string Province;
  std::string PostalCode;
  std::string AreaPhone;
  std::string AreaFax;
  std::string Phone;
  std::string Fax;
  std::string Email;

 protected:
  [[nodiscard]] std::string SelectText() const override;
  [[nodiscard]] std::string RetrieveColumns() const override;
  [[nodiscard]] std::string InsertText() const override;
  [[nodiscard]] std::string UpdateText() const override;
  bool ValidateRecord() override;
};

}  // namespace lorvane
