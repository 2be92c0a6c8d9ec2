#include "data/engine/Like.h"

#include <unicode/unistr.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

namespace lorvane::sql {
namespace {

constexpr unsigned char kFirstBeyondAscii = 0x80;

// The characters without their case.
std::u32string Folded(std::string_view text) {
  std::u32string folded;
  folded.reserve(text.size());
  const bool plain = std::all_of(text.begin(), text.end(), [](char c) {
    return static_cast<unsigned char>(c) < kFirstBeyondAscii;
  });
  if (plain) {
    for (const char c : text) {
      const bool capital = c >= 'A' && c <= 'Z';
      folded += static_cast<char32_t>(capital ? c - 'A' + 'a' : c);
    }
    return folded;
  }
  icu::UnicodeString units =
      icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
  units.foldCase();
  for (std::int32_t at = 0; at < units.length(); at = units.moveIndex32(at, 1)) {
    folded += static_cast<char32_t>(units.char32At(at));
  }
  return folded;
}

// What stands for one character at a place of a pattern, and where the pattern goes on behind it.
struct Place {
  bool fits = false;
  std::size_t next = 0;
};

// `at` is behind the opening bracket, `close` at the closing one.
Place FitList(char32_t character, std::u32string_view pattern, std::size_t at, std::size_t close) {
  const bool inverted = at < close && (pattern[at] == U'!' || pattern[at] == U'^');
  at += inverted ? 1 : 0;
  bool found = false;
  while (at < close) {
    const char32_t low = pattern[at];
    const bool isRange = at + 2 < close && pattern[at + 1] == U'-';
    const char32_t high = isRange ? pattern[at + 2] : low;
    found = found || (character >= low && character <= high);
    at += isRange ? 3 : 1;
  }
  return {found != inverted, close + 1};
}

Place FitOne(char32_t character, std::u32string_view pattern, std::size_t at) {
  if (pattern[at] == U'_') {
    return {true, at + 1};
  }
  const std::size_t close =
      pattern[at] == U'[' ? pattern.find(U']', at + 1) : std::u32string_view::npos;
  if (close != std::u32string_view::npos) {
    return FitList(character, pattern, at + 1, close);
  }
  return {character == pattern[at], at + 1};
}

}  // namespace

bool FitsPattern(std::string_view text, std::string_view pattern) {
  const std::u32string characters = Folded(text);
  const std::u32string places = Folded(pattern);
  std::size_t at = 0;
  std::size_t place = 0;
  // Behind the last %, and how far the text has been given to it.
  std::optional<std::size_t> behindAny;
  std::size_t given = 0;
  while (at < characters.size()) {
    if (place < places.size() && places[place] == U'%') {
      behindAny = ++place;
      given = at;
      continue;
    }
    const Place fit =
        place < places.size() ? FitOne(characters[at], places, place) : Place{false, 0};
    if (fit.fits) {
      ++at;
      place = fit.next;
      continue;
    }
    if (!behindAny) {
      return false;
    }
    at = ++given;
    place = *behindAny;
  }
  return places.find_first_not_of(U'%', place) == std::u32string::npos;
}

}  // namespace lorvane::sql
