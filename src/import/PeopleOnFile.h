#pragma once

#include <set>
#include <string>

#include "data/engine/Engine.h"
#include "import/ImportTarget.h"

namespace lorvane {

/// Who is in a table already, by the column that tells people apart: the first of the spreadsheet's
/// layout, SIN or business number. Blanks, dashes and points in a number don't count.
class PeopleOnFile {
 public:
  /// Raises the engine's error when the table can't be read.
  PeopleOnFile(EngineConnection& connection, const ImportTarget& target);

  /// A number with no letter or digit is nobody's.
  [[nodiscard]] bool Has(const std::string& number) const;
  void Add(const std::string& number);

 private:
  std::set<std::string> numbers_;
};

}  // namespace lorvane
