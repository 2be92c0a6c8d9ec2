#include "basic/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace lorvane {
namespace {

constexpr std::uint32_t kNotACharacter = 0xFFFFFFFF;

unsigned Byte(char c) { return static_cast<unsigned char>(c); }

bool IsContinuation(char c) { return (Byte(c) & 0xC0U) == 0x80U; }

// How many bytes the character at `at` takes when it is well-formed, else 0.
std::size_t WellFormedLength(std::string_view text, std::size_t at) {
  const unsigned first = Byte(text[at]);
  if (first < 0x80) {
    return 1;
  }
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || at + length > text.size()) {
    return 0;
  }
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(text[at + i])) {
      return 0;
    }
  }
  const unsigned second = Byte(text[at + 1]);
  const bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
  const bool surrogate = first == 0xED && second > 0x9F;
  const bool tooLarge = first == 0xF4 && second > 0x8F;
  return overlong || surrogate || tooLarge ? 0 : length;
}

// Bytes to step over to reach the next character; a stray byte counts as a character of its own.
std::size_t StepLength(std::string_view text, std::size_t at) {
  return std::max<std::size_t>(WellFormedLength(text, at), 1);
}

std::size_t OffsetOf(std::string_view text, std::size_t characters) {
  std::size_t at = 0;
  while (characters > 0 && at < text.size()) {
    at += StepLength(text, at);
    --characters;
  }
  return at;
}

std::uint32_t Decode(std::string_view text, std::size_t at, std::size_t length) {
  if (length == 1) {
    return Byte(text[at]) < 0x80 ? Byte(text[at]) : kNotACharacter;
  }
  std::uint32_t code = Byte(text[at]) & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    code = (code << 6U) | (Byte(text[at + i]) & 0x3FU);
  }
  return code;
}

bool IsPairedLatin(std::uint32_t code) {
  return (code >= 0x100 && code <= 0x137) || (code >= 0x14A && code <= 0x177);
}

bool IsOddPairedLatin(std::uint32_t code) {
  return (code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E);
}

std::uint32_t UpperOf(std::uint32_t code) {
  if ((code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7)) {
    return code - 0x20;
  }
  if (code == 0xFF) {
    return 0x178;
  }
  // The dotless and dotted i are no pair of the alphabets used here.
  if (code == 0x130 || code == 0x131) {
    return code;
  }
  if (IsPairedLatin(code)) {
    return code & ~1U;
  }
  return IsOddPairedLatin(code) && code % 2 == 0 ? code - 1 : code;
}

std::uint32_t LowerOf(std::uint32_t code) {
  if ((code >= 'A' && code <= 'Z') || (code >= 0xC0 && code <= 0xDE && code != 0xD7)) {
    return code + 0x20;
  }
  if (code == 0x178) {
    return 0xFF;
  }
  if (code == 0x130 || code == 0x131) {
    return code;
  }
  if (IsPairedLatin(code)) {
    return code | 1U;
  }
  return IsOddPairedLatin(code) && code % 2 == 1 ? code + 1 : code;
}

template <typename Map>
std::string MapCharacters(std::string_view text, Map map) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = StepLength(text, at);
    const std::uint32_t code = Decode(text, at, length);
    const std::uint32_t mapped = code == kNotACharacter ? code : map(code);
    if (mapped == code) {
      out.append(text.substr(at, length));
    } else {
      AppendCharacter(out, mapped);
    }
    at += length;
  }
  return out;
}

// Windows-1252 differs from Latin-1 in 0x80 to 0x9F only; 0 marks the five unused places.
constexpr std::array<std::uint16_t, 32> kWindows1252{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

std::uint32_t FromWindows1252(unsigned byte) {
  if (byte >= 0x80 && byte <= 0x9F && kWindows1252[byte - 0x80] != 0) {
    return kWindows1252[byte - 0x80];
  }
  return byte;
}

std::size_t LastSeparator(std::string_view path) { return path.find_last_of("/\\"); }

}  // namespace

void AppendCharacter(std::string& text, std::uint32_t code) {
  const auto tail = [&](unsigned shift) {
    text += static_cast<char>(0x80U | ((code >> shift) & 0x3FU));
  };
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0U | (code >> 6U));
    tail(0);
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0U | (code >> 12U));
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0U | (code >> 18U));
    tail(12);
    tail(6);
    tail(0);
  }
}

std::size_t Length(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += StepLength(text, at)) {
    ++count;
  }
  return count;
}

std::string Left(std::string_view text, std::size_t count) {
  return std::string(text.substr(0, OffsetOf(text, count)));
}

std::string Mid(std::string_view text, std::size_t start) {
  return std::string(text.substr(OffsetOf(text, start - 1)));
}

std::string Mid(std::string_view text, std::size_t start, std::size_t count) {
  return Left(text.substr(OffsetOf(text, start - 1)), count);
}

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) {
    return {};
  }
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string ToUpper(std::string_view text) { return MapCharacters(text, UpperOf); }

std::string ToLower(std::string_view text) { return MapCharacters(text, LowerOf); }

bool EqualsNoCase(std::string_view left, std::string_view right) {
  return left == right || ToLower(left) == ToLower(right);
}

std::string Replace(std::string_view text, std::string_view what, std::string_view with) {
  std::string out;
  std::size_t from = 0;
  for (std::size_t at = text.find(what); at != std::string_view::npos && !what.empty();
       at = text.find(what, from)) {
    out.append(text.substr(from, at - from)).append(with);
    from = at + what.size();
  }
  return out.append(text.substr(from));
}

std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  std::size_t from = 0;
  for (std::size_t at = text.find(separator); at != std::string_view::npos;
       at = text.find(separator, from)) {
    pieces.emplace_back(text.substr(from, at - from));
    from = at + 1;
  }
  pieces.emplace_back(text.substr(from));
  return pieces;
}

std::string Join(const std::vector<std::string>& pieces, std::string_view separator) {
  std::string out;
  for (const std::string& piece : pieces) {
    if (&piece != &pieces.front()) {
      out.append(separator);
    }
    out.append(piece);
  }
  return out;
}

bool IsUtf8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t length = WellFormedLength(bytes, at);
    if (length == 0) {
      return false;
    }
    at += length;
  }
  return true;
}

std::string ToUtf8(std::string_view bytes) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (bytes.substr(0, byteOrderMark.size()) == byteOrderMark) {
    bytes.remove_prefix(byteOrderMark.size());
  }
  std::string out;
  out.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t length = WellFormedLength(bytes, at);
    if (length == 0) {
      AppendCharacter(out, FromWindows1252(Byte(bytes[at])));
      ++at;
    } else {
      out.append(bytes.substr(at, length));
      at += length;
    }
  }
  return out;
}

std::vector<std::string> Characters(std::string_view text) {
  std::vector<std::string> characters;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = StepLength(text, at);
    characters.emplace_back(text.substr(at, length));
    at += length;
  }
  return characters;
}

std::string GetPathPart(std::string_view path) {
  const std::size_t at = LastSeparator(path);
  return at == std::string_view::npos ? std::string() : std::string(path.substr(0, at + 1));
}

std::string GetNamePart(std::string_view path) {
  const std::size_t at = LastSeparator(path);
  return std::string(at == std::string_view::npos ? path : path.substr(at + 1));
}

}  // namespace lorvane
