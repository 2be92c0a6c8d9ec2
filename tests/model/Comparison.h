#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Script.h"

namespace lorvane {
class ScriptProgram;
}

namespace lorvane::model {

/// The files of a running program beside the book: every row of the tables of record, the key
/// counters, the configuration, and the totals of remittances.
class Comparison {
 public:
  explicit Comparison(const DateTime& now) : now_(now) {}

  /// True when everything is as the checkpoint has it; otherwise ReasonLines() tell.
  [[nodiscard]] bool Holds(ScriptProgram& program, const Checkpoint& checkpoint);

  /// Lines of a script that fail in the same way where the comparison failed.
  [[nodiscard]] const std::vector<std::string>& ReasonLines() const { return reason_; }

 private:
  [[nodiscard]] bool TablesHold(ScriptProgram& program, const Book& book);
  [[nodiscard]] bool SettingsHold(ScriptProgram& program, const Book& book);
  /// `item` is the number of the entry of the list of industries.
  [[nodiscard]] bool TotalsHold(ScriptProgram& program, const Checkpoint& checkpoint, Kind kind,
                                int item);

  DateTime now_;
  std::vector<std::string> reason_;
};

}  // namespace lorvane::model
