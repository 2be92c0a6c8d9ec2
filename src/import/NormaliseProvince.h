#pragma once

#include <optional>
#include <string_view>

namespace lorvane {

/// The system's own code of a Canadian province or territory in one of the spellings that
/// spreadsheets hold, in capitals: "PQ" for Quebec, "YK", "NWT", "NUN". No postal codes: "QC" and
/// "NL" are unknown. Nothing is trimmed and the comparison is exact. Any other text, an empty one
/// too, gives "NS".
[[nodiscard]] std::string_view NormaliseProvince(std::string_view text);

/// As NormaliseProvince, with nothing for a text that isn't one of the spellings.
[[nodiscard]] std::optional<std::string_view> FindProvince(std::string_view text);

}  // namespace lorvane
