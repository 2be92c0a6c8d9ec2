#pragma once

#include <string>

#include "basic/IndustrySlot.h"
#include "data/Record.h"

namespace lorvane {

/// The six industries of a company: the single row of tblIndustries, updated in place.
///
/// A rate is in dollars per hundred dollars here and a fraction in the column: 1.14 is stored as
/// 0.0114.
class cIndustry : public Record {
 public:
  // Values of SelectFilter and UpdateFilter besides 0, all columns.
  static constexpr std::int32_t kSelectRates = 1;
  static constexpr std::int32_t kUpdateRates = 1;

  cIndustry();

  using Record::Update;

  /// Slot in use.
  PerSlot<bool> Ind;
  /// Description, up to 100 characters.
  PerSlot<std::string> Desc;
  /// The account identifier that the board gave.
  PerSlot<std::string> Identifier;
  /// Dollars per hundred dollars assessable.
  PerSlot<double> Rate;
  /// Classification code.
  PerSlot<std::string> Sic;

 protected:
  [[nodiscard]] std::string SelectText() const override;
  [[nodiscard]] std::string RetrieveColumns() const override;
  [[nodiscard]] std::string UpdateText() const override;

 private:
  std::int32_t id_ = 0;
};

}  // namespace lorvane
