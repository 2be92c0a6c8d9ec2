#pragma once

#include <memory>
#include <string>

#include "basic/IndustrySlot.h"
#include "data/DataConnection.h"
#include "screen/Buttons.h"

namespace lorvane {

/// The check boxes "chkIndA" to "chkIndF" for the industries in which a person works. Only those of
/// the company's own industries can be seen and ticked; the others still carry what a record holds.
class IndustryBoxes {
 public:
  /// `tip` is what the frame says about itself.
  IndustryBoxes(Screen& screen, const std::string& tip);

  Frame fraIndustry;

  [[nodiscard]] CheckBox& Box(IndustrySlot slot) const { return *boxes_[slot]; }
  /// Shows the boxes of the company's industries under their descriptions. A table that can't be
  /// read leaves all boxes hidden.
  void ShowIndustries(DataConnection& connection);
  void Tick(const PerSlot<bool>& industries);
  [[nodiscard]] PerSlot<bool> Ticked() const;
  [[nodiscard]] bool AnyTicked() const;
  /// Lays the frame and the boxes on a tab page, counted from 1.
  void LayOnPage(int page);

 private:
  PerSlot<std::unique_ptr<CheckBox>> boxes_;
};

}  // namespace lorvane
