#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lorvane::model {

/// The script that came to a difference, or to a line that doesn't hold.
struct ModelFailure {
  std::string message;
  /// Ends where the system and the book part.
  std::string script;
  /// The step that the last line belongs to; 0 for what stands before the steps.
  unsigned step = 0;
};

/// Carries the steps out on a company of its own, beside the book; nothing when they agree to the
/// end.
[[nodiscard]] std::optional<ModelFailure> RunModel(unsigned seed,
                                                   const std::vector<unsigned>& steps);

/// Runs a script, with nothing beside it, on a company of its own; what it says when it fails.
[[nodiscard]] std::string RunAlone(const std::string& script);

/// As few of the steps as still fail, looked for as long as `seconds`, with how they fail.
[[nodiscard]] ModelFailure Shrink(unsigned seed, std::vector<unsigned> steps, ModelFailure failure,
                                  int seconds);

}  // namespace lorvane::model
