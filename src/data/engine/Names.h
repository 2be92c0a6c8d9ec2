#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace lorvane::sql {

// Names of tables and columns compare without regard to the case of the letters A to Z.

[[nodiscard]] constexpr char FoldName(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

[[nodiscard]] constexpr bool SameName(std::string_view left, std::string_view right) {
  return left.size() == right.size() &&
         std::equal(left.begin(), left.end(), right.begin(),
                    [](char a, char b) { return FoldName(a) == FoldName(b); });
}

struct NameHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view name) const {
    std::uint64_t hash = 14695981039346656037U;
    for (const char c : name) {
      hash = (hash ^ static_cast<unsigned char>(FoldName(c))) * 1099511628211U;
    }
    return static_cast<std::size_t>(hash);
  }
};

struct NameEqual {
  using is_transparent = void;
  bool operator()(std::string_view left, std::string_view right) const {
    return SameName(left, right);
  }
};

/// Appends the name in marks that let it be any name. Double quotes would do as well, but a name in
/// them that is no longer there would be taken for a text.
inline void AppendName(std::string& sql, std::string_view name, char mark = '`') {
  sql += mark;
  for (const char c : name) {
    sql += c;
    if (c == mark) {
      sql += c;
    }
  }
  sql += mark;
}

/// The name in double quotes, as a declaration in the file has it.
[[nodiscard]] inline std::string QuotedName(std::string_view name) {
  std::string quoted;
  AppendName(quoted, name, '"');
  return quoted;
}

}  // namespace lorvane::sql
