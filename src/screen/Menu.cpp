#include "screen/Menu.h"

#include <utility>

namespace lorvane {

MenuEntry::MenuEntry(Screen& screen, std::string name, std::string caption, bool popUp)
    : Control(screen, std::move(name)), popUp_(popUp) {
  SetCaption(std::move(caption));
}

MenuEntry::MenuEntry(MenuEntry& parent, std::string name, std::string caption, std::string shortcut)
    : Control(parent.Owner(), std::move(name)), parent_(&parent), shortcut_(std::move(shortcut)) {
  SetCaption(std::move(caption));
  parent.children_.push_back(this);
}

void MenuEntry::SetChecked(bool checked) {
  checked_ = checked;
  Changed();
}

bool MenuEntry::Usable() const {
  const bool shown = Visible() || popUp_;
  return Enabled() && shown && (parent_ == nullptr || parent_->Usable());
}

std::optional<std::string> MenuEntry::Attribute(std::string_view name) const {
  return name == "checked" ? FlagText(checked_) : Control::Attribute(name);
}

}  // namespace lorvane
