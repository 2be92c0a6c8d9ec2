#pragma once

#include <string>

namespace lorvane {

// A birth or expiry date that isn't known is a date long ago in the tables, and a word on screen.
inline constexpr const char* kNoDateStored = "1/1/1899";
inline constexpr const char* kNoDateShown = "none";

/// What a field shows for a stored date, null among them.
[[nodiscard]] inline std::string ShownDate(const std::string& stored) {
  return stored.empty() || stored == kNoDateStored ? kNoDateShown : stored;
}

/// What is stored for the text of a field.
[[nodiscard]] inline std::string StoredDate(const std::string& shown) {
  return shown == kNoDateShown ? kNoDateStored : shown;
}

}  // namespace lorvane
