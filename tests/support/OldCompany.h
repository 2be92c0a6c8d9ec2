#pragma once

#include <string>
#include <vector>

namespace lorvane {

/// What the data file of an earlier release lacks of today's.
struct OldShape {
  std::string name;
  /// Tables ("tblAssets"), columns ("tblEmployees.Street") and key counters ("tblAssets#").
  std::vector<std::string> missing;
  /// Characters that the six descriptions of the industries hold.
  int descriptionSize = 100;
};

/// Every shape that the program brings up to date, and some that it doesn't know.
[[nodiscard]] const std::vector<OldShape>& OldShapes();
/// Throws std::out_of_range when there is none of that name.
[[nodiscard]] const OldShape& OldShapeNamed(const std::string& name);

/// Makes a company of that shape in an existing folder: Data.mdb and LorvaneConfig.ini. On file are
/// the industry Roofing, the employee 4 Archer, the sub-contractor 6 Anchor, and a row in both
/// scratch tables.
void MakeOldCompany(const std::string& folder, const OldShape& shape);

}  // namespace lorvane
