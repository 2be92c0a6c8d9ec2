#include "cli/ScriptControlNames.h"

#include <charconv>

#include "basic/Text.h"
#include "cli/ScriptErrors.h"

namespace lorvane {
namespace {

constexpr std::size_t kMostDigits = 9;
constexpr std::size_t kMostPlaces = 2;

}  // namespace

std::optional<int> ScriptNumber(std::string_view text) {
  int number = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  if (text.empty() || text.size() > kMostDigits || text.front() == '-' || error != std::errc() ||
      rest != end) {
    return std::nullopt;
  }
  return number;
}

ControlReference ParseReference(std::string_view name) {
  ControlReference reference;
  const std::size_t bracket = name.find('[');
  if (bracket != std::string_view::npos) {
    reference.control = name.substr(0, bracket);
    const std::string_view inside = name.substr(bracket + 1);
    const std::size_t end = inside.find(']');
    if (end == std::string_view::npos || end + 1 != inside.size()) {
      throw ScriptFailure{std::string(name) + " lacks its closing bracket"};
    }
    for (const std::string& piece : Split(inside.substr(0, end), ',')) {
      const std::optional<int> place = ScriptNumber(Trim(piece));
      if (!place || reference.places.size() == kMostPlaces) {
        throw ScriptFailure{std::string(name) + " names no place in a list"};
      }
      reference.places.push_back(*place);
    }
    return reference;
  }
  const std::size_t point = name.find('.');
  reference.control = name.substr(0, point);
  if (point != std::string_view::npos) {
    reference.attribute = name.substr(point + 1);
  }
  return reference;
}

}  // namespace lorvane
