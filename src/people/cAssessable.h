#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "data/Record.h"

namespace lorvane {

/// A contract type: a way of paying a sub-contractor, with the percentage of a payment that a board
/// counts as labour. The record of tblAssessable. Nothing is validated.
class cAssessable : public Record {
 public:
  // Values of WhereFilter and OrderByFilter.
  static constexpr std::int32_t kWhereKey = 1;
  static constexpr std::int32_t kWhereOffered = 2;
  static constexpr std::int32_t kOrderByKey = 1;
  static constexpr std::int32_t kOrderByDescription = 2;

  cAssessable();

  using Record::AddNew;
  using Record::Delete;
  /// Only UpdateFilter 0 writes anything.
  using Record::Update;

  /// Copies every property but ProvId.
  void CopyObject(cAssessable& target) const;

  std::int32_t AssessId = 0;
  /// Province code, or "ALL" for a type valid everywhere.
  std::string ProvId;
  std::string Description;
  /// Per cent of a payment, as a whole number; the column is AssessLabour.
  double AssessableLabour = 0;
  /// Offered in every province, whatever ProvId says.
  bool Standard = false;

 protected:
  [[nodiscard]] std::string SelectText() const override;
  [[nodiscard]] std::string RetrieveColumns() const override;
  [[nodiscard]] std::string BuildWhere() const override;
  [[nodiscard]] std::string BuildOrderBy() const override;
  [[nodiscard]] std::string InsertText() const override;
  [[nodiscard]] std::string UpdateText() const override;
  [[nodiscard]] std::optional<SchemaRepair> Repair() const override;
};

}  // namespace lorvane
