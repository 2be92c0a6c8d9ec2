#include "data/engine/Value.h"

#include "basic/Number.h"

namespace lorvane {
namespace {

struct ToTextVisitor {
  std::string operator()(std::monostate) const { return {}; }
  std::string operator()(bool flag) const { return flag ? "True" : "False"; }
  std::string operator()(std::int32_t number) const { return std::to_string(number); }
  std::string operator()(double number) const { return ShortestText(number); }
  std::string operator()(Currency amount) const { return amount.ToText(); }
  std::string operator()(const DateTime& date) const { return ShortDate(date); }
  std::string operator()(const std::string& text) const { return text; }
};

}  // namespace

std::string TextOf(const Value& value) { return std::visit(ToTextVisitor(), value); }

std::string ListingTextOf(const Value& value) {
  if (const bool* flag = std::get_if<bool>(&value)) {
    return *flag ? "-1" : "0";
  }
  return TextOf(value);
}

}  // namespace lorvane
