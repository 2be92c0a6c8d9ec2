#pragma once

#include <optional>
#include <string>

#include "basic/Date.h"
#include "cli/ScriptParser.h"

namespace lorvane {

struct ScriptOptions {
  std::string path;
  /// What --set gave.
  ScriptVariables variables;
  /// Where the clock stands; the machine's time when nothing was said.
  std::optional<DateTime> now;
};

/// Runs a screen script on the whole program. The exit status: 0 done, 1 failed, with the reason on
/// standard output. Raises CommandFailure for what can't be read, or is no script.
[[nodiscard]] int RunScript(const ScriptOptions& options);

}  // namespace lorvane
