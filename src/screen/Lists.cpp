#include "screen/Lists.h"

#include <algorithm>
#include <utility>

#include "basic/RuntimeError.h"
#include "screen/Screen.h"

namespace lorvane {
namespace {

int IndexOfText(const std::vector<ListEntry>& entries, const std::string& text) {
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [&](const ListEntry& entry) { return entry.text == text; });
  return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

}  // namespace

const std::string& ListControl::EntryText(int index) const {
  CheckIndex(index);
  return entries_[static_cast<std::size_t>(index)].text;
}

std::int32_t ListControl::ItemData(int index) const {
  CheckIndex(index);
  return entries_[static_cast<std::size_t>(index)].itemData;
}

void ListControl::SetEntryText(int index, std::string text) {
  CheckIndex(index);
  entries_[static_cast<std::size_t>(index)].text = std::move(text);
  Changed();
}

void ListControl::SetRemark(int index, std::string remark, Urgency urgency) {
  CheckIndex(index);
  ListEntry& entry = entries_[static_cast<std::size_t>(index)];
  entry.remark = std::move(remark);
  entry.urgency = urgency;
  Changed();
}

void ListControl::Add(std::string text, std::int32_t itemData) {
  entries_.push_back({.text = std::move(text), .itemData = itemData});
  Changed();
}

void ListControl::Remove(int index) {
  CheckIndex(index);
  entries_.erase(entries_.begin() + index);
  if (listIndex_ == index) {
    listIndex_ = -1;
  } else if (listIndex_ > index) {
    --listIndex_;
  }
  Changed();
}

void ListControl::Clear() {
  entries_.clear();
  listIndex_ = -1;
  Changed();
}

void ListControl::SetListIndex(int index) {
  if (index < -1 || index >= Count()) {
    throw RuntimeError(error_number::kInvalidPropertyValue);
  }
  if (index != listIndex_) {
    listIndex_ = index;
    Changed();
    RaiseClick();
  }
}

void ListControl::UserSelect(int index) {
  if (Usable() && index >= 0 && index < Count() && Owner().MoveFocus(*this)) {
    const bool again = index == listIndex_;
    SetListIndex(index);
    if (again) {
      RaiseClick();
    }
    RaiseMouseUp(MouseButton::kLeft);
  }
}

std::optional<std::string> ListControl::Attribute(std::string_view name) const {
  if (name == "count") {
    return std::to_string(Count());
  }
  if (name == "index") {
    return std::to_string(listIndex_);
  }
  return Control::Attribute(name);
}

void ListControl::CheckIndex(int index) const {
  if (index < 0 || index >= Count()) {
    throw RuntimeError(error_number::kInvalidArrayIndex);
  }
}

void ListBox::SelectText(const std::string& text) {
  const int index = IndexOfText(Entries(), text);
  if (index >= 0) {
    SetListIndex(index);
  }
}

void ListBox::UserDoubleClick(int index) {
  if (Usable() && index >= 0 && index < Count()) {
    UserSelect(index);
    if (OnDoubleClick) {
      OnDoubleClick();
    }
  }
}

std::string ListBox::ShownText() const {
  return ListIndex() < 0 ? std::string() : EntryText(ListIndex());
}

ComboBox::ComboBox(Screen& screen, std::string name, Style style)
    : ListControl(screen, std::move(name)), style_(style) {}

void ComboBox::SetText(const std::string& text) {
  const int index = IndexOfText(Entries(), text);
  if (index >= 0) {
    SetListIndex(index);
  } else if (style_ == Style::kDropDownList) {
    throw RuntimeError(error_number::kTextNotInList);
  } else if (text != text_) {
    StoreListIndex(-1);
    text_ = text;
    Changed();
    if (OnChange) {
      OnChange();
    }
  }
}

void ComboBox::Clear() {
  text_.clear();
  ListControl::Clear();
}

void ComboBox::SetListIndex(int index) {
  if (index >= 0) {
    text_ = index < Count() ? EntryText(index) : text_;
  } else {
    text_.clear();
  }
  ListControl::SetListIndex(index);
}

void ComboBox::UserSelect(int index) {
  if (Usable() && index >= 0 && index < Count()) {
    UserDropDown();
    ListControl::UserSelect(index);
  }
}

void ComboBox::UserDropDown() {
  if (Usable() && Owner().MoveFocus(*this) && OnDropDown) {
    OnDropDown();
  }
}

}  // namespace lorvane
