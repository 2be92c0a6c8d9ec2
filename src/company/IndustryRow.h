#pragma once

#include <string>

#include "basic/IndustrySlot.h"
#include "company/cIndustry.h"
#include "screen/Buttons.h"
#include "screen/TextBox.h"

namespace lorvane {

/// The controls of one industry on the company window. The check box says whether the slot is in
/// use, and its caption is the description.
class IndustryRow {
 public:
  IndustryRow(Screen& screen, IndustrySlot slot);

  CheckBox chkInd;
  TextBox txtSic;
  Command cmdRates;
  TextBox txtRate;
  TextBox txtIdentifier;

  [[nodiscard]] IndustrySlot Slot() const { return slot_; }

  /// As designed: off, "Undefined", with nothing in the fields.
  void ShowUnused();
  /// Off, with the identifier that a new company's slot has. The description stays.
  void ShowNew();
  /// Shows the record's slot when it is in use; a slot that isn't leaves the controls as they are.
  void Show(const cIndustry& industries);
  /// Copies what the controls hold into the record. A rate that is no number leaves the record's.
  void CopyTo(cIndustry& industries) const;
  /// Fills code, description and rate from a list of published rates, and turns the slot on.
  void Take(const std::string& code, const std::string& description, const std::string& rate);

 private:
  IndustrySlot slot_;
};

}  // namespace lorvane
