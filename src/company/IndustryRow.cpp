#include "company/IndustryRow.h"

#include "basic/Money.h"
#include "basic/Number.h"

namespace lorvane {
namespace {

constexpr std::size_t kLongestCode = 6;
constexpr std::size_t kLongestIdentifier = 4;

}  // namespace

IndustryRow::IndustryRow(Screen& screen, IndustrySlot slot)
    : chkInd(screen, SlotName("chkInd", slot), "Undefined", "Right click to rename"),
      txtSic(screen, SlotName("txtSic", slot)),
      cmdRates(screen, "cmdRates_" + std::to_string(IndexOf(slot)), "...",
               "SIC codes and descriptions"),
      txtRate(screen, SlotName("txtRate", slot)),
      txtIdentifier(screen, SlotName("txtIdentifier", slot)),
      slot_(slot) {
  chkInd.UseMnemonic = false;
  chkInd.DataField = SlotName("Ind", slot);
  txtSic.DataField = SlotName("Sic", slot);
  txtRate.DataField = SlotName("Rate", slot);
  txtIdentifier.DataField = SlotName("Identifier", slot);
  txtSic.SetMaxLength(kLongestCode);
  txtIdentifier.SetMaxLength(kLongestIdentifier);
  txtRate.SetTip("Rate supplied by Lorvane per $100 (i.e. 1.14)");
  txtIdentifier.SetTip("Account identifier supplied by Lorvane (i.e. 0001, 0002...)");
}

void IndustryRow::ShowUnused() {
  chkInd.SetChecked(false);
  chkInd.SetCaption("Undefined");
  txtSic.SetText("");
  txtRate.SetText("");
  txtIdentifier.SetText("");
}

void IndustryRow::ShowNew() {
  chkInd.SetChecked(false);
  txtSic.SetText("");
  txtRate.SetText("");
  txtIdentifier.SetText("000" + std::to_string(NumberOf(slot_)));
}

void IndustryRow::Show(const cIndustry& industries) {
  if (!industries.Ind[slot_]) {
    return;
  }
  chkInd.SetChecked(true);
  chkInd.SetCaption(industries.Desc[slot_]);
  txtIdentifier.SetText(industries.Identifier[slot_]);
  // Slot D's own format, one optional digit shorter, prints every rate alike.
  txtRate.SetText(Plain(industries.Rate[slot_]));
  txtSic.SetText(industries.Sic[slot_]);
}

void IndustryRow::CopyTo(cIndustry& industries) const {
  industries.Ind[slot_] = chkInd.Checked();
  industries.Desc[slot_] = chkInd.Caption();
  industries.Identifier[slot_] = txtIdentifier.Text();
  industries.Sic[slot_] = txtSic.Text();
  if (IsNumeric(txtRate.Text())) {
    industries.Rate[slot_] = ToDouble(txtRate.Text());
  }
}

void IndustryRow::Take(const std::string& code, const std::string& description,
                       const std::string& rate) {
  txtSic.SetText(code);
  chkInd.SetCaption(description);
  txtRate.SetText(rate);
  chkInd.SetChecked(true);
}

}  // namespace lorvane
