#include "import/sheet/NumberFormat.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lorvane {
namespace {

// The place behind what begins at `at`: quoted text, a colour or locale in brackets, or a character
// that is shown as it is. Just the next place for anything else.
std::size_t Skip(std::string_view code, std::size_t at) {
  switch (code[at]) {
    case '"':
      return std::min(code.find('"', at + 1), code.size() - 1) + 1;
    case '[':
      return std::min(code.find(']', at), code.size() - 1) + 1;
    case '\\':
    case '_':
    case '*':
      return at + 2;
    default:
      return at + 1;
  }
}

// Hours, minutes or seconds that go past the day: [h], [mm].
bool IsElapsedTime(std::string_view bracket) {
  return bracket.size() > 2 && bracket.front() == '[' &&
         bracket.substr(1, bracket.size() - 2).find_first_not_of("hHmMsS") ==
             std::string_view::npos;
}

}  // namespace

bool IsDateFormat(std::string_view code) {
  for (std::size_t at = 0; at < code.size();) {
    const std::size_t next = std::min(Skip(code, at), code.size());
    const std::string_view piece = code.substr(at, next - at);
    if (piece.size() == 1 ? piece.find_first_of("dDmMyYhHsS") == 0 : IsElapsedTime(piece)) {
      return true;
    }
    at = next;
  }
  return false;
}

bool IsBuiltInDateFormat(int number) {
  constexpr std::array kRanges{std::pair(14, 22), std::pair(27, 36), std::pair(45, 47),
                               std::pair(50, 58)};
  return std::any_of(kRanges.begin(), kRanges.end(), [&](const std::pair<int, int>& range) {
    return number >= range.first && number <= range.second;
  });
}

}  // namespace lorvane
