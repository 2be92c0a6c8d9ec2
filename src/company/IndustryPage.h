#pragma once

#include <functional>
#include <memory>

#include "basic/IndustrySlot.h"
#include "company/IndustryRow.h"
#include "screen/Menu.h"
#include "screen/Screen.h"

namespace lorvane {

/// The industries page of the company window: a row of controls for each slot, and the pop-up menu
/// that renames one.
class IndustryPage {
 public:
  /// The page's place in the tab strip, counted from 1.
  static constexpr int kTabPage = 2;

  explicit IndustryPage(Screen& screen);

  Label lblDescription;
  Label lblSic;
  Label lblRate;
  Label lblIdentifier;
  MenuEntry mnuPopUp;
  MenuEntry mnuPoRename;

  /// The user gave a slot another description.
  std::function<void()> OnRenamed;

  [[nodiscard]] IndustryRow& Row(IndustrySlot slot) const { return *rows_[slot]; }
  [[nodiscard]] bool AnyInUse() const;
  /// The slot whose check box has the focus; null when another control has it.
  [[nodiscard]] const IndustryRow* FocusedRow() const;

  /// Every slot as designed, then those in use as the record has them.
  void Show(const cIndustry& industries);
  /// The slots in use as the record has them; the others stay.
  void ShowUsed(const cIndustry& industries);
  void ShowNew();
  void CopyTo(cIndustry& industries) const;

  /// Which slot the Rename entry is about; the first until the user has chosen one.
  void ChooseForRename(IndustrySlot slot) { toRename_ = slot; }
  /// Asks for another description of the chosen slot. An empty answer changes nothing.
  void Rename();

 private:
  Screen& screen_;
  PerSlot<std::unique_ptr<IndustryRow>> rows_;
  IndustrySlot toRename_ = IndustrySlot::kA;
};

}  // namespace lorvane
