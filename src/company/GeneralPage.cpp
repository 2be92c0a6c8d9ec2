#include "company/GeneralPage.h"

#include <array>
#include <string>

#include "screen/modTextBox.h"

namespace lorvane {
namespace {

constexpr int kCapitals = 1;

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
  cboProvinces.Show(company.Province);
}

void GeneralPage::ShowNew() {
  for (const FieldDesign& field : kFields) {
    (this->*field.box).SetText("");
  }
  txtPrgIdentifier.SetText("NW");
  cboProvinces.Show("NS");
  txtAreaPhone.SetText("902");
  txtAreaFax.SetText("902");
}

void GeneralPage::CopyTo(cCompany& company) const {
  for (const FieldDesign& field : kFields) {
    company.*field.property = (this->*field.box).Text();
  }
  company.Province = cboProvinces.Code();
}

}  // namespace lorvane
