#include "screen/TabStrip.h"

#include <utility>

#include "basic/RuntimeError.h"

namespace lorvane {

TabStrip::TabStrip(Screen& screen, std::string name, std::vector<std::string> titles)
    : Control(screen, std::move(name)), titles_(std::move(titles)) {}

void TabStrip::SetTab(int tab) {
  if (tab < 0 || tab >= static_cast<int>(titles_.size())) {
    throw RuntimeError(error_number::kInvalidPropertyValue);
  }
  tab_ = tab;
  Changed();
  RaiseClick();
}

void TabStrip::UserSelect(int tab) {
  if (Usable() && tab >= 0 && tab < static_cast<int>(titles_.size())) {
    SetTab(tab);
  }
}

std::string TabStrip::ShownText() const { return titles_[static_cast<std::size_t>(tab_)]; }

std::optional<std::string> TabStrip::Attribute(std::string_view name) const {
  if (name == "count") {
    return std::to_string(titles_.size());
  }
  return name == "index" ? std::to_string(tab_) : Control::Attribute(name);
}

}  // namespace lorvane
