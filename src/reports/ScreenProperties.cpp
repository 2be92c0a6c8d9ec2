#include "reports/ScreenProperties.h"

#include <algorithm>

#include "basic/Number.h"
#include "basic/Text.h"
#include "screen/Control.h"

namespace lorvane {
namespace {

struct AsText {
  std::string operator()(const std::string* text) const { return *text; }
  std::string operator()(const bool* flag) const { return FlagText(*flag); }
  std::string operator()(const std::int16_t* number) const { return std::to_string(*number); }
};

struct Take {
  std::string_view value;

  void operator()(std::string* text) const { *text = value; }
  void operator()(bool* flag) const { *flag = EqualsNoCase(value, FlagText(true)); }
  void operator()(std::int16_t* number) const { *number = ToInteger(value); }
};

template <typename Targets>
auto FindTarget(const Targets& targets, std::string_view name) {
  return std::find_if(targets.begin(), targets.end(),
                      [&](const auto& target) { return EqualsNoCase(target.first, name); });
}

}  // namespace

std::optional<std::string> ScreenProperties::Get(std::string_view name) const {
  const auto found = FindTarget(targets_, name);
  if (found == targets_.end()) {
    return std::nullopt;
  }
  return std::visit(AsText(), found->second);
}

bool ScreenProperties::Set(std::string_view name, std::string_view value) const {
  const auto found = FindTarget(targets_, name);
  if (found == targets_.end()) {
    return false;
  }
  std::visit(Take{value}, found->second);
  return true;
}

}  // namespace lorvane
