#pragma once

#include <string>
#include <string_view>

namespace lorvane {

/// What became of a script.
struct ScriptOutcome {
  bool holds = false;
  /// Standard output and standard error.
  std::string out;
  std::string err;
};

/// Runs a script named "story" on the small screens. ${DIR} stands for `folder`.
[[nodiscard]] ScriptOutcome RunOnSmallScreens(std::string_view script,
                                              const std::string& folder = {});

}  // namespace lorvane
