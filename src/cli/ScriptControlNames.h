#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// The whole text as a number of at most nine digits; nothing for anything else.
[[nodiscard]] std::optional<int> ScriptNumber(std::string_view text);

/// A name as scripts write it, in its pieces: NAME, NAME.enabled, NAME[2] or NAME[2,3].
struct ControlReference {
  std::string control;
  /// Behind the first point; empty when there is none.
  std::string attribute;
  /// The numbers in brackets; empty when there are none.
  std::vector<int> places;
};

/// Raises ScriptFailure for brackets that hold no places.
[[nodiscard]] ControlReference ParseReference(std::string_view name);

}  // namespace lorvane
