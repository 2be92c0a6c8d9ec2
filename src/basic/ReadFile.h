#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace lorvane {

/// The bytes of a file or pipe, which is read no further than one byte beyond `most`: a longer
/// result is too large. Nothing for a folder, and for what can't be read to its end.
[[nodiscard]] std::optional<std::string> ReadFile(const std::string& path, std::size_t most);

}  // namespace lorvane
