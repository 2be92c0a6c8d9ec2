#pragma once

#include <string>
#include <string_view>

namespace lorvane {

class EngineConnection;

/// The rows of a SELECT as "1|Pike;2|": null is empty, flags are -1 and 0.
[[nodiscard]] std::string RowsText(EngineConnection& connection, std::string_view statement);

}  // namespace lorvane
