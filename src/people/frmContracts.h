#pragma once

#include <string>
#include <string_view>

#include "people/cAssessable.h"
#include "screen/Labelled.h"
#include "screen/ListView.h"
#include "screen/Lists.h"
#include "screen/Screen.h"

namespace lorvane {

/// The window on the contract types of a province: those valid everywhere and those of its own,
/// with the percentage of a payment that counts as labour.
class frmContracts : public Screen {
 public:
  explicit frmContracts(ScreenContext context);

  Labelled<ListBox> lstProvinces{*this, "lstProvinces", "Select a province"};
  ListView lvwContracts{*this, "lvwContracts", false};
  Command cmdAdd{*this, "cmdAdd", "&Add"};
  Command cmdEdit{*this, "cmdEdit", "&Edit"};
  Command cmdOK{*this, "cmdOK", "&OK"};
  Command cmdClose{*this, "cmdClose", "&Close"};

  void Load() override;
  void Unload() override;
  /// "LoadContracts".
  bool Call(std::string_view operation) override;

  /// Reads the contract types of the selected province. Raises 381 when none is selected.
  void LoadContracts();

 private:
  void SelectCompanyProvince();
  [[nodiscard]] std::string SelectedCode() const;
  void ChooseContract();
  void Add();
  void Edit();

  cAssessable contracts_;
};

}  // namespace lorvane
