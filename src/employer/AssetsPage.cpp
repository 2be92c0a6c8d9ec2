#include "employer/AssetsPage.h"

#include <initializer_list>

#include "basic/Text.h"

namespace lorvane {
namespace {

constexpr RecordWords kWords{
    "lstAssets",
    cAssets::kOrderByDescription,
    "Are you sure you want to delete this asset?",
    "There was no information found for this asset.",
};

}  // namespace

AssetsPage::AssetsPage(Screen& screen, DataConnection* connection)
    : RecordEditorOf(screen, kWords, connection),
      texts_{{&txtDescription, "Description", &cAssets::Description},
             {&txtSerialNumber, "SerialNo", &cAssets::SerialNo},
             {&txtLicenseNo, "LicenseNo", &cAssets::LicenseNo},
             {&txtMake, "VehicleMake", &cAssets::VehicleMake},
             {&txtModel, "VehicleModel", &cAssets::VehicleModel},
             {&txtColour, "VehicleColour", &cAssets::VehicleColour},
             {&txtYear, "VehicleYear", &cAssets::VehicleYear}} {
  MakeEntryFields("tblAssets", texts_);
  ConnectButtons(cmdAdd, cmdApply, cmdDelete);
  Habits().MarkEditWithKeys(chkVehicle);
  chkVehicle.DataField = "IsVehicle";
  chkVehicle.OnClick = [this] { VehicleClicked(); };
  EnableVehicle(false);
}

void AssetsPage::VehicleClicked() {
  EnableVehicle(chkVehicle.Checked());
  MarkEdit();
  // Whoever looks through the list keeps the cursor there.
  if (chkVehicle.Checked() && !IsFilling()) {
    screen_.SetFocus(txtMake);
  }
}

void AssetsPage::EnableVehicle(bool enabled) {
  for (Control* control :
       std::initializer_list<Control*>{&fraVehicle, &txtMake, &txtModel, &txtColour, &txtYear}) {
    control->SetEnabled(enabled);
  }
}

void AssetsPage::ShowRecord() {
  ShowTexts(record_, texts_);
  chkVehicle.SetChecked(record_.IsVehicle);
}

void AssetsPage::ClearFields() {
  ClearTexts(texts_);
  chkVehicle.SetChecked(false);
}

void AssetsPage::CopyFields() {
  CopyTexts(texts_, record_);
  record_.IsVehicle = chkVehicle.Checked();
}

bool AssetsPage::IsComplete() {
  return !Trim(txtDescription.Text()).empty() ||
         Refuse(txtDescription, "You must assign a description.", "Description");
}

}  // namespace lorvane
