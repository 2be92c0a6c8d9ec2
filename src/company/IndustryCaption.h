#pragma once

#include <string>

namespace lorvane {

/// An industry's description as lists and check boxes show it: one of more than 25 characters is
/// cut there, trimmed, and followed by "...".
[[nodiscard]] std::string IndustryCaption(const std::string& description);

}  // namespace lorvane
