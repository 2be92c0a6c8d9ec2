#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace lorvane {

/// The public properties of a screen by their names, which compare without regard to case.
class ScreenProperties {
 public:
  using Target = std::variant<std::string*, bool*, std::int16_t*>;

  void Add(std::string name, Target target) { targets_.emplace_back(std::move(name), target); }

  /// Nothing when there is none of that name.
  [[nodiscard]] std::optional<std::string> Get(std::string_view name) const;
  /// False when there is none of that name. Flags are "true" and "false"; raises 13 and 6 for a
  /// text that is no whole number where one is needed.
  bool Set(std::string_view name, std::string_view value) const;

 private:
  std::vector<std::pair<std::string, Target>> targets_;
};

}  // namespace lorvane
