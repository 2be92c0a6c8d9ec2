#pragma once

#include <string>

#include "data/engine/Engine.h"

namespace lorvane {

/// How reports name the company.
struct CompanyHeading {
  std::string name;
  /// Business number and program identifier, with nothing between them.
  std::string businessNumber;
  /// Street, city, province and postal code with single blanks between them.
  std::string address;
};

/// Reads the company's first row; a column that is null is passed over. Raises 3021 when there is
/// no row.
[[nodiscard]] CompanyHeading ReadCompanyHeading(EngineConnection& connection);

}  // namespace lorvane
