#pragma once

#include <cstdint>
#include <string>

#include "data/Record.h"

namespace lorvane {

/// Something of value that the company owns, with what is asked of a vehicle besides: the record of
/// tblAssets.
class cAssets : public Record {
 public:
  // Values of SelectFilter, WhereFilter and OrderByFilter.
  static constexpr std::int32_t kSelectAll = 0;
  static constexpr std::int32_t kSelectNames = 1;
  static constexpr std::int32_t kWhereKey = 1;
  static constexpr std::int32_t kWhereDescription = 2;
  static constexpr std::int32_t kOrderByKey = 1;
  static constexpr std::int32_t kOrderByDescription = 2;

  cAssets();

  using Record::AddNew;
  using Record::Delete;
  using Record::Update;

  std::int32_t AssetId = 0;
  std::string Description;
  std::string SerialNo;
  std::string LicenseNo;
  bool IsVehicle = false;
  std::string VehicleMake;
  std::string VehicleModel;
  std::string VehicleColour;
  /// Digits, or empty for an unknown year: the column holds a number.
  std::string VehicleYear;

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
