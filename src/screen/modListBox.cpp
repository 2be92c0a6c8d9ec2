#include "screen/modListBox.h"

#include <algorithm>

namespace lorvane {

int ListReselect(ListControl& list, std::int16_t index) {
  if (list.Count() == 0) {
    return -1;
  }
  const int last = list.Count() - 1;
  list.SetListIndex(index + 1 >= list.Count() ? last : std::max<int>(index, 0));
  return list.ListIndex();
}

int ListIndexByData(const ListControl& list, std::int32_t value) {
  for (int i = 0; i < list.Count(); ++i) {
    if (list.ItemData(i) == value) {
      return i;
    }
  }
  return -1;
}

void ListAddItem(ListControl& list, std::int32_t value, const std::string& text) {
  list.Add(text, value);
}

}  // namespace lorvane
