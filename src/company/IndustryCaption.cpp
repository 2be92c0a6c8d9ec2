#include "company/IndustryCaption.h"

#include <cstddef>

#include "basic/Text.h"

namespace lorvane {
namespace {

constexpr std::size_t kLongestCaption = 25;

}  // namespace

std::string IndustryCaption(const std::string& description) {
  return Length(description) > kLongestCaption ? Trim(Left(description, kLongestCaption)) + "..."
                                               : description;
}

}  // namespace lorvane
