#include "people/frmSubContractor.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "company/cCompany.h"
#include "people/ClearanceRemarks.h"
#include "people/ContractTerms.h"
#include "people/NoDate.h"
#include "people/cAssessable.h"
#include "people/frmBirthDate.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modListBox.h"

namespace lorvane {
namespace {

constexpr PeopleWords kWords{
    "frmSubContractor",
    "Sub-Contractors on File",
    "lstSubContractors",
    "false",
    "Please enter a full or partial name.",
    "There is no sub-contractor with\r\na name simliar to ",
    "You cannot delete a subcontractor with entries for the current year.",
    "Are you sure you wish to delete the current subcontractor?",
};

// What a new sub-contractor begins with, wherever the company is.
constexpr const char* kNewProvince = "NS";
constexpr const char* kNewDescription = " ";

// Nothing reads the number of an entry; one that a 32-bit integer can't hold must not stop anyone.
std::int32_t EntryNumberOf(double percentage) {
  using Limits = std::numeric_limits<std::int32_t>;
  return ToLong(std::clamp<double>(percentage, Limits::min(), Limits::max()));
}

}  // namespace

frmSubContractor::frmSubContractor(ScreenContext context)
    : PeopleScreenOf(context, kWords),
      business_{{&txtBusNum, "BusNum", &cSubContractor::BusNum},
                {&txtSubName, "Name", &cSubContractor::Name},
                {&txtAddress, "Address", &cSubContractor::Address},
                {&txtCity, "City", &cSubContractor::City},
                {&txtPostalCode, "PostCode", &cSubContractor::PostCode}},
      contacts_{{&txtPhone, "Phone", &cSubContractor::Phone},
                {&txtFax, "Fax", &cSubContractor::Fax},
                {&txtEmail, "Email", &cSubContractor::Email}} {
  LayOut();
  Connect();
}

void frmSubContractor::LayOut() {
  const struct {
    TextBox& field;
    std::size_t longest;
    const char* tip;
  } fields[] = {{txtBusNum, 9, "9 digit business number or SIN"},
                {txtSubName, 75, "Sub-contractor's name"},
                {txtAddress, 50, "Address"},
                {txtCity, 30, "City"},
                {txtPostalCode, 7, "Postal code"},
                {txtDesc, 150, "Description of work"}};
  for (const auto& row : fields) {
    row.field.SetMaxLength(row.longest);
    row.field.SetTip(row.tip);
  }
  cboContract.SetTip("Contract type determined by Lorvane");
  txtPercent.SetReadOnly(true);
  txtExpiry.SetReadOnly(true);
  cmdDateSelect.SetEnabled(false);
}

void frmSubContractor::Connect() {
  Habits().MakeEntryFields(business_);
  Habits().MakeEntryFields(contacts_);
  for (TextBox* field : {&txtPercent, &txtExpiry}) {
    Habits().MakeEntryField(*field);
  }
  Habits().MakeTextField(txtDesc);
  FieldHabits::MakeCapitals(txtPostalCode);
  for (ComboBox* combo : std::initializer_list<ComboBox*>{&cboProvinces, &cboContract}) {
    Habits().MarkEditWithKeys(*combo);
    combo->OnDropDown = [this] { MarkEdit(); };
  }
  cboProvinces.DataField = "Province";
  cboContract.DataField = "ContractType";
  txtDesc.DataField = "Description";
  txtPercent.DataField = "PercentLabour";
  txtExpiry.DataField = "Expiry";

  txtSubName.OnValidate = [this] { return HasName(); };
  cboContract.OnClick = [this] { ChooseContract(); };
  cboContract.OnLostFocus = [this] {
    if (cboContract.Text() == kContractNotAssigned) {
      Warn("You must assign a contract type to this sub-contractor.", "Required Information");
    }
  };
  cmdDateSelect.OnClick = [this] {
    PickDate(frmBirthDate::kExpiry, "Select a Clearance Letter Expiry Date");
  };
}

void frmSubContractor::RemarkOnPeople() {
  RemarkOnClearances(list, *context_.session.gDataConn, context_.services.Now());
}

void frmSubContractor::LoadChoices() {
  cCompany company;
  company.SetDataConnection(context_.session.gDataConn.get());
  company.OpenRecordset();
  cAssessable contracts;
  contracts.SetDataConnection(context_.session.gDataConn.get());
  contracts.WhereFilter = cAssessable::kWhereOffered;
  contracts.OrderByFilter = cAssessable::kOrderByDescription;
  contracts.ProvId = company.Province;
  for (bool more = contracts.OpenRecordset(); more; more = contracts.MoveNext()) {
    ListAddItem(cboContract, EntryNumberOf(contracts.AssessableLabour), contracts.Description);
  }
}

void frmSubContractor::ChooseContract() {
  if (const ContractTerms* terms = FindContractTerms(cboContract.Text())) {
    txtPercent.SetText(terms->percent);
    cmdDateSelect.SetEnabled(terms->hasExpiry);
  }
}

bool frmSubContractor::HasName() {
  if (!txtSubName.Text().empty()) {
    return true;
  }
  Warn("Please enter a name.", "Required");
  return false;
}

bool frmSubContractor::ShowRecord() {
  if (!ShowFields()) {
    return false;
  }
  txtExpiry.SetText(ShownDate(record_.Expiry));
  return true;
}

// The expiry keeps what a user picked.
void frmSubContractor::ShowSaved() { static_cast<void>(ShowFields()); }

// A contract type that isn't offered ends it: the fields behind keep what they show.
bool frmSubContractor::ShowFields() {
  ShowTexts(record_, business_);
  cboProvinces.Show(record_.Province);
  if (!ShowContract()) {
    return false;
  }
  txtDesc.SetText(record_.Description);
  // Over what choosing the type has just put there.
  txtPercent.SetText(ShortestText(record_.PercentLabour) + "%");
  ShowTexts(record_, contacts_);
  chkInd.Tick(record_.Ind);
  return true;
}

bool frmSubContractor::ShowContract() {
  // Blank first, so that the same type as before is chosen anew, with all that follows.
  cboContract.SetListIndex(-1);
  try {
    cboContract.SetText(record_.ContractType);
    return true;
  } catch (const RuntimeError& error) {
    if (error.Number() == error_number::kTextNotInList) {
      context_.services.MsgBox(
          "The contract type assigned to this sub-contractor was not found.\r\n"
          "Please ensure that the appropriate contract types for your\r\n"
          "province have been properly assigned .",
          box::kInformation, "Unknown Contract Type");
    } else {
      ShowError(context_, error, box::kExclamation);
    }
    return false;
  }
}

void frmSubContractor::ClearFields() {
  ClearTexts(business_);
  cboProvinces.Show(kNewProvince);
  cboContract.SetListIndex(-1);
  if (cboContract.Count() > 0) {
    cboContract.SetListIndex(0);
  }
  txtDesc.SetText(kNewDescription);
  txtExpiry.SetText(kNoDateShown);
  ClearTexts(contacts_);
  cmdDateSelect.SetEnabled(false);
  chkInd.Tick({});
}

void frmSubContractor::CopyFields() {
  CopyTexts(business_, record_);
  record_.Province = cboProvinces.Code();
  CopyTexts(contacts_, record_);
  CopyContract();
  record_.Description = txtDesc.Text();
  record_.Expiry = StoredDate(txtExpiry.Text());
  CopyPercent();
  record_.Ind = chkInd.Ticked();
}

void frmSubContractor::CopyContract() {
  const std::string& chosen = cboContract.Text();
  if (!IsAdding() && !record_.ContractType.empty() && record_.ContractType != chosen) {
    Warn(
        "Please remember that if you have existing payments,\r\n"
        "the previous labour percentage was applied. Changing \r\n"
        "the labour percentage could cause problems with your \r\n"
        "data and consequently your annual subcontractor report.\r\n"
        "\r\n"
        "Please refer to the online help for assistance.",
        "Contract Type");
  }
  record_.ContractType = chosen;
}

// The text is read by its length, which takes percentages of up to three characters. Any other
// leaves the record's, so that a stored fraction of a per cent survives.
void frmSubContractor::CopyPercent() {
  constexpr std::size_t kShortest = 2;
  constexpr std::size_t kLongest = 4;
  const std::size_t length = Length(txtPercent.Text());
  if (length >= kShortest && length <= kLongest) {
    record_.PercentLabour = ToDouble(Left(txtPercent.Text(), length - 1));
  }
}

void frmSubContractor::KeyPreview(int& key) {
  if (key != key_code::kEscape) {
    return;
  }
  key = key_code::kNone;
  if (IsDirty()) {
    UndoEdit();
  } else {
    Close();
  }
}

bool frmSubContractor::IsComplete() {
  if (!PeopleScreen::IsComplete()) {
    return false;
  }
  if (cboContract.Text() == kContractNotAssigned) {
    Warn("Please assign a contract type.", "Assign Contract");
    return false;
  }
  return true;
}

}  // namespace lorvane
