#pragma once

#include <cstdint>
#include <string>

#include "screen/Lists.h"

namespace lorvane {

/// After the entry at `index` was removed, selects its neighbour: the last entry when index plus 1
/// is the count or more, else the entry at the index, or the first when the index isn't above 0.
/// The result is the list's new index; -1 when the list is empty.
int ListReselect(ListControl& list, std::int16_t index);
/// The first index whose ItemData is the value; -1 when none.
[[nodiscard]] int ListIndexByData(const ListControl& list, std::int32_t value);
void ListAddItem(ListControl& list, std::int32_t value, const std::string& text);

}  // namespace lorvane
