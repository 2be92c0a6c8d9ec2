#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace lorvane {

/// The number that a part of a workbook holds, which is written the same way everywhere; nothing
/// when the text is none.
template <typename Number>
[[nodiscard]] std::optional<Number> PartNumber(std::string_view text) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto [stopped, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stopped == end ? std::optional(number) : std::nullopt;
}

/// As PartNumber, for a flag: "1" or "true".
[[nodiscard]] inline bool PartFlag(std::string_view text) { return text == "1" || text == "true"; }

}  // namespace lorvane
