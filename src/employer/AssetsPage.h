#pragma once

#include <string>

#include "employer/RecordEditor.h"
#include "employer/cAssets.h"
#include "screen/Labelled.h"

namespace lorvane {

/// The list of the company's assets, and the fields of the one selected.
class AssetsPage : public RecordEditorOf<cAssets, &cAssets::AssetId> {
 public:
  AssetsPage(Screen& screen, DataConnection* connection);

  Frame fraGeneral{screen_, "fraGeneral", "General"};
  Labelled<TextBox> txtDescription{screen_, "txtDescription", "Description:"};
  Labelled<TextBox> txtSerialNumber{screen_, "txtSerialNumber", "Serial Number:"};
  Labelled<TextBox> txtLicenseNo{screen_, "txtLicenseNo", "License No.:"};
  CheckBox chkVehicle{screen_, "chkVehicle", "This asset is a vehicle."};
  Frame fraVehicle{screen_, "fraVehicle", "Vehicle"};
  Labelled<TextBox> txtMake{screen_, "txtMake", "Make:"};
  Labelled<TextBox> txtModel{screen_, "txtModel", "Model:"};
  Labelled<TextBox> txtColour{screen_, "txtColour", "Colour:"};
  Labelled<TextBox> txtYear{screen_, "txtYear", "Year:"};
  Command cmdAdd{screen_, "cmdAdd", "&Add"};
  Command cmdDelete{screen_, "cmdDelete", "&Delete"};
  Command cmdApply{screen_, "cmdApply", "A&pply"};

 private:
  [[nodiscard]] std::string EntryText() const override { return record_.Description; }
  void ShowRecord() override;
  void ClearFields() override;
  void CopyFields() override;
  [[nodiscard]] Control& FirstField() override { return txtDescription; }
  [[nodiscard]] bool IsComplete() override;

  void VehicleClicked();
  /// A frame that is off takes its fields along.
  void EnableVehicle(bool enabled);

  TextFields<cAssets> texts_;
};

}  // namespace lorvane
