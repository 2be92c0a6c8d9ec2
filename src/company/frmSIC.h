#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "company/RateTables.h"
#include "screen/Buttons.h"
#include "screen/ListView.h"
#include "screen/Lists.h"
#include "screen/Screen.h"
#include "screen/TextBox.h"

namespace lorvane {

class frmCompany;

/// The look-up of classification codes and their published rates by year. A code that is taken
/// fills one slot of the company window; nothing is stored here.
class frmSIC : public Screen {
 public:
  /// `company` outlives the look-up.
  frmSIC(ScreenContext context, frmCompany& company);

  Label lblYear{*this, "lblYear", "Year"};
  ComboBox cboYear{*this, "cboYear", ComboBox::Style::kDropDown};
  Label lblSIC{*this, "lblSIC", "Search for"};
  TextBox txtSIC{*this, "txtSIC"};
  Command cmdGo{*this, "cmdGo", "&Go"};
  ListView lvwSic{*this, "lvwSic", false};
  Command cmdOK{*this, "cmdOK", "&OK"};
  Command cmdClose{*this, "cmdClose", "Close"};

  /// The slot to fill, 0 to 5.
  std::int16_t SicIndex = 0;

  void Load() override;
  [[nodiscard]] std::optional<std::string> Property(std::string_view name) const override;
  bool SetProperty(std::string_view name, std::string_view value) override;

  /// Lists the rates of a year. A year without a table leaves the list empty, and the user is told
  /// whom to ask for it.
  void SelectYear(const std::string& year);

 private:
  void ConnectControls();
  void SelectTypedYear();
  void Search();
  /// The first row whose searched texts begin with the text, else the first that has it anywhere;
  /// -1 when none has.
  [[nodiscard]] int FindRow(const std::string& text) const;
  void TakeSelected();

  frmCompany& company_;
  RateTables rates_;
};

}  // namespace lorvane
