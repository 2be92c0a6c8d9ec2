#include "people/IndustryBoxes.h"

#include <algorithm>

#include "company/IndustryCaption.h"
#include "company/cIndustry.h"

namespace lorvane {
namespace {

// The second box has its caption misspelt since the first release.
const char* DesignedCaption(IndustrySlot slot) {
  return slot == IndustrySlot::kB ? "Unspecifed" : "Unspecified";
}

}  // namespace

IndustryBoxes::IndustryBoxes(Screen& screen, const std::string& tip)
    : fraIndustry(screen, "fraIndustry", "Industry Information", tip) {
  for (const IndustrySlot slot : kAllSlots) {
    boxes_[slot] =
        std::make_unique<CheckBox>(screen, SlotName("chkInd", slot), DesignedCaption(slot));
    Box(slot).DataField = SlotName("Ind", slot);
    Box(slot).UseMnemonic = false;
    Box(slot).SetEnabled(false);
    Box(slot).SetVisible(false);
  }
}

void IndustryBoxes::ShowIndustries(DataConnection& connection) {
  cIndustry industries;
  industries.SetDataConnection(&connection);
  if (!industries.OpenRecordset()) {
    return;
  }
  for (const IndustrySlot slot : kAllSlots) {
    if (industries.Ind[slot]) {
      Box(slot).SetEnabled(true);
      Box(slot).SetVisible(true);
      Box(slot).SetCaption(IndustryCaption(industries.Desc[slot]));
    }
  }
}

void IndustryBoxes::Tick(const PerSlot<bool>& industries) {
  for (const IndustrySlot slot : kAllSlots) {
    Box(slot).SetChecked(industries[slot]);
  }
}

PerSlot<bool> IndustryBoxes::Ticked() const {
  PerSlot<bool> ticked;
  for (const IndustrySlot slot : kAllSlots) {
    ticked[slot] = Box(slot).Checked();
  }
  return ticked;
}

bool IndustryBoxes::AnyTicked() const {
  return std::any_of(boxes_.begin(), boxes_.end(), [](const auto& box) { return box->Checked(); });
}

void IndustryBoxes::LayOnPage(int page) {
  fraIndustry.TabPage = page;
  for (const auto& box : boxes_) {
    box->TabPage = page;
  }
}

}  // namespace lorvane
