#include "company/GeneralPage.h"

#include <algorithm>
#include <array>
#include <string>

#include "screen/modTextBox.h"

namespace lorvane {
namespace {

constexpr int kCapitals = 1;

constexpr std::array kProvinces{
    "NF", "NS", "NB", "PE", "PQ", "ON", "MB", "SK", "AB", "BC", "NWT", "YK", "NUN", "AL", "AK",
    "AS", "AZ", "AR", "CA", "CO", "CT", "DE", "DC", "FM", "FL", "GA",  "GU", "HI",  "ID", "IL",
    "IN", "IA", "KS", "KY", "LA", "ME", "MH", "MD", "MA", "MI", "MN",  "MS", "MO",  "MT", "NE",
    "NV", "NH", "NJ", "NM", "NY", "NC", "ND", "MP", "OH", "OK", "OR",  "PW", "PA",  "PR", "RI",
    "SC", "SD", "TN", "TX", "UT", "VT", "VI", "VA", "WA", "WV", "WI",  "WY"};

// Where a field's text is stored, and how much can be typed.
struct FieldDesign {
  TextBox GeneralPage::*box;
  std::string cCompany::*property;
  const char* column;
  std::size_t maxLength;
  const char* tip;
};

constexpr std::array kFields{
    FieldDesign{&GeneralPage::txtBusNum, &cCompany::BusNum, "BusNum", 9,
                "9 digit number given to you by Lorvane (i.e. 12345 6789)"},
    FieldDesign{&GeneralPage::txtPrgIdentifier, &cCompany::PrgIdentifier, "PrgIdentifier", 2,
                "2 letter program identifier given to you by Lorvane (i.e. NW)"},
    FieldDesign{&GeneralPage::txtLegalName, &cCompany::LegalName, "LegalName", 50,
                "Legal Name of your company"},
    FieldDesign{&GeneralPage::txtOpAs, &cCompany::OpAs, "OpAs", 50,
                "The operating name if different from legal"},
    FieldDesign{&GeneralPage::txtAddress, &cCompany::Address, "Address", 50, "Address"},
    FieldDesign{&GeneralPage::txtCity, &cCompany::City, "City", 30, "City"},
    FieldDesign{&GeneralPage::txtPostalCode, &cCompany::PostalCode, "PostalCode", 7, "Postal code"},
    FieldDesign{&GeneralPage::txtAreaPhone, &cCompany::AreaPhone, "AreaPhone", 3, "Area Code"},
    FieldDesign{&GeneralPage::txtPhone, &cCompany::Phone, "Phone", 8, "Phone number"},
    FieldDesign{&GeneralPage::txtAreaFax, &cCompany::AreaFax, "AreaFax", 3, "Area code"},
    FieldDesign{&GeneralPage::txtFax, &cCompany::Fax, "Fax", 8, "Fax number"},
    FieldDesign{&GeneralPage::txtEmail, &cCompany::Email, "Email", 75, "Email address"},
};

}  // namespace

GeneralPage::GeneralPage(Screen& screen) : screen_(screen) {
  for (const FieldDesign& field : kFields) {
    TextBox& box = this->*field.box;
    box.DataField = field.column;
    box.SetMaxLength(field.maxLength);
    box.SetTip(field.tip);
    box.TabPage = kTabPage;
  }
  SetTextBoxCase(txtPrgIdentifier, kCapitals);
  SetTextBoxCase(txtPostalCode, kCapitals);
  for (const char* province : kProvinces) {
    cboProvinces.Add(province);
  }
  cboProvinces.DataField = "Province";
  cboProvinces.TabPage = kTabPage;
  for (Label* label : {&lblBusNum, &lblPrgIdentifier, &lblLegalName, &lblOpAs, &lblAddress,
                       &lblCity, &lblProvinces, &lblPostalCode, &lblPhone, &lblFax, &lblEmail}) {
    label->TabPage = kTabPage;
  }
}

std::vector<TextBox*> GeneralPage::Fields() {
  std::vector<TextBox*> boxes;
  boxes.reserve(kFields.size());
  for (const FieldDesign& field : kFields) {
    boxes.push_back(&(this->*field.box));
  }
  return boxes;
}

void GeneralPage::Show(const cCompany& company) {
  for (const FieldDesign& field : kFields) {
    (this->*field.box).SetText(company.*field.property);
  }
  const auto* const offered = std::find(kProvinces.begin(), kProvinces.end(), company.Province);
  cboProvinces.SetListIndex(
      offered == kProvinces.end() ? -1 : static_cast<int>(offered - kProvinces.begin()));
}

void GeneralPage::ShowNew() {
  for (const FieldDesign& field : kFields) {
    (this->*field.box).SetText("");
  }
  txtPrgIdentifier.SetText("NW");
  cboProvinces.SetText("NS");
  txtAreaPhone.SetText("902");
  txtAreaFax.SetText("902");
}

void GeneralPage::CopyTo(cCompany& company) const {
  for (const FieldDesign& field : kFields) {
    company.*field.property = (this->*field.box).Text();
  }
  if (cboProvinces.ListIndex() >= 0) {
    company.Province = cboProvinces.Text();
  }
}

}  // namespace lorvane
