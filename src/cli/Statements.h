#pragma once

#include <string>
#include <string_view>

namespace lorvane {

class EngineConnection;

/// Whether a statement asks for rows.
[[nodiscard]] bool IsSelect(std::string_view statement);

/// The first column of a SELECT's first row as a listing shows it; empty when there is no row.
[[nodiscard]] std::string FirstValue(EngineConnection& connection, std::string_view statement);

}  // namespace lorvane
