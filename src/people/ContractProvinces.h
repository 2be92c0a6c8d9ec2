#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// The places of the contract types window, in the order of its list. The first has the number 1.
[[nodiscard]] const std::vector<const char*>& ContractPlaces();

/// The province code under which the contract types of a place are kept, by the place's number;
/// empty for a number that isn't a place's.
[[nodiscard]] std::string ContractProvinceCode(std::int32_t number);

/// The place to look for in the list when the company is in the province; empty when there is none.
/// Some of the names aren't in the list.
[[nodiscard]] std::string PlaceOfProvince(std::string_view code);

}  // namespace lorvane
