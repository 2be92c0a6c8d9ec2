#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "screen/Control.h"

namespace lorvane {

/// What a remark on an entry calls for.
enum class Urgency { kNone, kSoon, kOverdue };

/// One entry of a list, with the number that a screen attaches to it, and a remark that is shown
/// behind its text and is no part of it.
struct ListEntry {
  std::string text;
  std::int32_t itemData = 0;
  std::string remark = {};
  Urgency urgency = Urgency::kNone;
};

/// What a list box and a drop-down list share: entries, of which at most one is selected. Selecting
/// another entry, by code too, raises OnClick.
class ListControl : public Control {
 public:
  using Control::Control;

  [[nodiscard]] int Count() const { return static_cast<int>(entries_.size()); }
  [[nodiscard]] const std::vector<ListEntry>& Entries() const { return entries_; }
  /// The text and number at an index; raises 381 outside the list.
  [[nodiscard]] const std::string& EntryText(int index) const;
  [[nodiscard]] std::int32_t ItemData(int index) const;
  void SetEntryText(int index, std::string text);
  /// An empty remark takes it away.
  void SetRemark(int index, std::string remark, Urgency urgency);

  virtual void Add(std::string text, std::int32_t itemData = 0);
  virtual void Remove(int index);
  virtual void Clear();

  /// The selected entry's index; -1 for none.
  [[nodiscard]] int ListIndex() const { return listIndex_; }
  /// Raises 380 for an index outside the list; -1 selects nothing.
  virtual void SetListIndex(int index);

  /// A user picks an entry.
  virtual void UserSelect(int index);
  [[nodiscard]] std::optional<std::string> Attribute(std::string_view name) const override;

 protected:
  void StoreListIndex(int index) { listIndex_ = index; }
  void CheckIndex(int index) const;

 private:
  std::vector<ListEntry> entries_;
  int listIndex_ = -1;
};

/// A list of which one entry is selected. Its text is the selected entry's.
class ListBox : public ListControl {
 public:
  using ListControl::ListControl;

  /// Selects the entry of that text; nothing when there is none.
  void SelectText(const std::string& text);
  void UserDoubleClick(int index);
  [[nodiscard]] std::string ShownText() const override;
};

/// A drop-down list, with or without a field to type in.
class ComboBox : public ListControl {
 public:
  enum class Style { kDropDownList, kDropDown };

  ComboBox(Screen& screen, std::string name, Style style = Style::kDropDownList);

  [[nodiscard]] Style BoxStyle() const { return style_; }
  [[nodiscard]] const std::string& Text() const { return text_; }
  /// Selects the entry of that text, which raises OnClick. Raises 383 when no entry has it; where a
  /// text can be typed it just stands in the field then, which raises OnChange.
  void SetText(const std::string& text);

  void Clear() override;
  void SetListIndex(int index) override;
  /// A user drops the list down and picks an entry. To pick one without that, or after it, is
  /// ListControl's own UserSelect.
  void UserSelect(int index) override;
  /// A user drops the list down.
  void UserDropDown();
  std::function<void()> OnDropDown;
  /// Another text that is no entry's stands in the field.
  std::function<void()> OnChange;
  [[nodiscard]] std::string ShownText() const override { return text_; }

 private:
  Style style_;
  std::string text_;
};

}  // namespace lorvane
