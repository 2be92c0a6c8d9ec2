#pragma once

#include <optional>
#include <string>

#include "data/Files.h"

namespace lorvane {

// What may lie beside a data file: its logs, which belong to no other file.

/// Removes a data file that nobody has open, its logs first. Raises as Files::Remove.
void RemoveDataFile(Files& files, const std::string& file);

/// The path of a log that would be taken for that of a new file of this name; nothing as a rule.
[[nodiscard]] std::optional<std::string> FindLogOf(Files& files, const std::string& file);

}  // namespace lorvane
