#include "employer/PrincipalsPage.h"

#include <fmt/format.h>

#include <algorithm>
#include <initializer_list>
#include <optional>

#include "basic/Date.h"
#include "basic/Text.h"

namespace lorvane {
namespace {

constexpr RecordWords kWords{
    "lstPrincipals",
    cPrincipals::kOrderByLastName,
    "Are you sure you want to delete this person?",
    "",
};

constexpr const char* kAskDate = "Please enter a valid date.";

// "mm/dd/yyyy"; a text that is no date stays as it is.
std::string FormattedDate(const std::string& text) {
  const std::optional<DateTime> date = ParseDate(text);
  return date ? fmt::format("{:02}/{:02}/{:04}", date->month, date->day, date->year) : text;
}

// "###-###-###"; a text that isn't nine digits stays as it is.
std::string FormattedSin(const std::string& text) {
  constexpr std::size_t kDigits = 9;
  const bool isNumber = text.size() == kDigits && std::all_of(text.begin(), text.end(), [](char c) {
                          return c >= '0' && c <= '9';
                        });
  return isNumber ? text.substr(0, 3) + "-" + text.substr(3, 3) + "-" + text.substr(6) : text;
}

}  // namespace

PrincipalsPage::PrincipalsPage(Screen& screen, TabStrip& tabs, int page, DataConnection* connection)
    : RecordEditorOf(screen, kWords, connection),
      tabs_(tabs),
      texts_{{&txtPrincipalLastName, "LastName", &cPrincipals::LastName},
             {&txtPrincipalFirstName, "FirstName", &cPrincipals::FirstName},
             {&txtTitle, "Title", &cPrincipals::Title},
             {&txtPrincipalAddress, "Address", &cPrincipals::Address},
             {&txtPrincipalCity, "City", &cPrincipals::City},
             {&txtPrincipalPostalCode, "PostalCode", &cPrincipals::PostalCode},
             {&txtSin, "Sin", &cPrincipals::Sin},
             {&txtDob, "BirthDate", &cPrincipals::BirthDate},
             {&txtWork, "WorkPhone", &cPrincipals::WorkPhone},
             {&txtCell, "CellPhone", &cPrincipals::CellPhone},
             {&txtHome, "HomePhone", &cPrincipals::HomePhone},
             {&txtFax, "FaxPhone", &cPrincipals::FaxPhone}} {
  LayOut(page);
  MakeEntryFields("tblPrincipals", texts_);
  ConnectButtons(cmdAdd, cmdSave, cmdDelete);
  Habits().MarkEditWithKeys(cboPrincipalProvince);
  cboPrincipalProvince.DataField = "Province";
  cboPrincipalProvince.OnClick = [this] { MarkEdit(); };
  txtDob.OnValidate = [this] {
    if (!HasGoodDate()) {
      Warn(kAskDate, "Date");
      return false;
    }
    return true;
  };
  txtDob.OnLostFocus = [this] { txtDob.SetText(FormattedDate(txtDob.Text())); };
  txtSin.OnLostFocus = [this] { txtSin.SetText(FormattedSin(txtSin.Text())); };
}

void PrincipalsPage::LayOut(int page) {
  for (Labelled<TextBox>* field : {&txtPrincipalLastName, &txtPrincipalFirstName, &txtTitle,
                                   &txtPrincipalAddress, &txtPrincipalCity, &txtPrincipalPostalCode,
                                   &txtSin, &txtDob, &txtWork, &txtCell, &txtHome, &txtFax}) {
    field->LayOnPage(page);
  }
  cboPrincipalProvince.LayOnPage(page);
  for (Control* control : std::initializer_list<Control*>{&list, &cmdAdd, &cmdSave, &cmdDelete}) {
    control->TabPage = page;
  }
}

std::string PrincipalsPage::EntryText() const {
  return record_.LastName + ", " + record_.FirstName;
}

void PrincipalsPage::ShowRecord() {
  ShowTexts(record_, texts_);
  cboPrincipalProvince.Show(record_.Province);
  txtDob.SetText(FormattedDate(record_.BirthDate));
  txtSin.SetText(FormattedSin(record_.Sin));
}

void PrincipalsPage::ClearFields() {
  ClearTexts(texts_);
  cboPrincipalProvince.Show(NewProvince);
}

void PrincipalsPage::CopyFields() {
  CopyTexts(texts_, record_);
  record_.Province = cboPrincipalProvince.Code();
}

bool PrincipalsPage::IsComplete() {
  if (Trim(txtTitle.Text()).empty()) {
    return Refuse(txtTitle, "Please assign a title.", "Title");
  }
  // The window can be left without leaving the field.
  return HasGoodDate() || Refuse(txtDob, kAskDate, "Date");
}

bool PrincipalsPage::HasGoodDate() const {
  const std::string text = Trim(txtDob.Text());
  return text.empty() || IsDate(text);
}

}  // namespace lorvane
