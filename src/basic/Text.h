#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

// Text is UTF-8 throughout. Lengths and cuts count characters (code points), never bytes.

inline constexpr const char* kCrLf = "\r\n";

/// Number of characters.
[[nodiscard]] std::size_t Length(std::string_view text);
/// The first `count` characters, or all when there are fewer.
[[nodiscard]] std::string Left(std::string_view text, std::size_t count);
/// The characters from the 1-based `start` on; empty behind the end.
[[nodiscard]] std::string Mid(std::string_view text, std::size_t start);
/// At most `count` characters from the 1-based `start` on.
[[nodiscard]] std::string Mid(std::string_view text, std::size_t start, std::size_t count);
/// Without blanks (and only blanks) at both ends.
[[nodiscard]] std::string Trim(std::string_view text);
/// Capitals and small letters of the Latin alphabet, accented letters included.
[[nodiscard]] std::string ToUpper(std::string_view text);
[[nodiscard]] std::string ToLower(std::string_view text);
/// Equality without regard to case.
[[nodiscard]] bool EqualsNoCase(std::string_view left, std::string_view right);
/// Replaces every `what` by `with`.
[[nodiscard]] std::string Replace(std::string_view text, std::string_view what,
                                  std::string_view with);
/// The pieces between the separators; one empty piece for an empty text.
[[nodiscard]] std::vector<std::string> Split(std::string_view text, char separator);
[[nodiscard]] std::string Join(const std::vector<std::string>& pieces, std::string_view separator);

/// Whether the bytes are well-formed UTF-8.
[[nodiscard]] bool IsUtf8(std::string_view bytes);
/// The bytes as UTF-8: a byte-order mark goes, and bytes that aren't UTF-8 are read as
/// Windows-1252.
[[nodiscard]] std::string ToUtf8(std::string_view bytes);
/// Adds the character of a code point.
void AppendCharacter(std::string& text, std::uint32_t code);
/// Each character's bytes, in order.
[[nodiscard]] std::vector<std::string> Characters(std::string_view text);

/// The text up to and including the last path separator ("/" or "\"); empty when there is none.
[[nodiscard]] std::string GetPathPart(std::string_view path);
/// The text after the last path separator; the whole text when there is none.
[[nodiscard]] std::string GetNamePart(std::string_view path);

}  // namespace lorvane
