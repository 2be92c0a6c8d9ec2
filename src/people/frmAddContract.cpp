#include "people/frmAddContract.h"

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modTextBox.h"

namespace lorvane {
namespace {

// As wide as the column.
constexpr std::size_t kLongestDescription = 50;

}  // namespace

frmAddContract::frmAddContract(ScreenContext context)
    : Screen(context, "frmAddContract", "Contract") {
  contract_.SetDataConnection(context.session.gDataConn.get());
  txtDescription.SetMaxLength(kLongestDescription);
  txtDescription.OnGotFocus = [this] { SelectText(txtDescription); };
  txtAssessable.OnGotFocus = [this] { SelectText(txtAssessable); };
  txtDescription.OnKeyPress = [this](int& key) { EnterActsAsTab(*this, key); };
  txtAssessable.OnKeyPress = [this](int& key) { PercentageKeyPress(key); };
}

void frmAddContract::Load() {
  if (Adding) {
    txtDescription.SetText({});
    txtAssessable.SetText("0");
  } else {
    LoadAssessable();
  }
}

void frmAddContract::LoadAssessable() {
  contract_.WhereFilter = cAssessable::kWhereKey;
  contract_.AssessId = AssessId;
  if (!contract_.OpenRecordset()) {
    context_.services.MsgBox(contract_.InfoMsg(), box::kExclamation, "LoadAssessable");
    return;
  }
  txtDescription.SetText(contract_.Description);
  txtAssessable.SetText(ShortestText(contract_.AssessableLabour));
}

void frmAddContract::PercentageKeyPress(int& key) {
  if (key == key_code::kEnter) {
    key = key_code::kNone;
    if (Adding) {
      AddContract();
    } else {
      UpdateContract();
    }
    Close();
  } else {
    key = FilterKeyPressNumeric(key, false);
  }
}

void frmAddContract::AddContract() {
  cAssessable contract;
  contract.SetDataConnection(context_.session.gDataConn.get());
  contract.Description = txtDescription.Text();
  contract.AssessableLabour = ToDouble(txtAssessable.Text());
  contract.ProvId = ProvId;
  contract.Standard = false;
  // The list, read again behind this dialog, shows whether the type is there.
  static_cast<void>(contract.AddNew());
}

void frmAddContract::UpdateContract() {
  try {
    contract_.Description = txtDescription.Text();
    contract_.AssessableLabour = ToDouble(txtAssessable.Text());
    if (!contract_.Update()) {
      context_.services.MsgBox(contract_.InfoMsg(), box::kExclamation, "DataUpdate");
    }
  } catch (const RuntimeError& error) {
    context_.services.MsgBox(NumberAndDescription(error), box::kExclamation, "DataUpdate");
  }
}

void frmAddContract::Unload() {
  contract_.CloseRecordset();
  if (Screen* contracts = context_.services.FindScreen("frmContracts")) {
    contracts->Call("LoadContracts");
  }
}

std::optional<std::string> frmAddContract::Property(std::string_view name) const {
  if (EqualsNoCase(name, "Adding")) {
    return FlagText(Adding);
  }
  if (EqualsNoCase(name, "Description")) {
    return txtDescription.Text();
  }
  if (EqualsNoCase(name, "Assessable")) {
    return txtAssessable.Text();
  }
  if (EqualsNoCase(name, "ProvId")) {
    return ProvId;
  }
  if (EqualsNoCase(name, "AssessId")) {
    return std::to_string(AssessId);
  }
  return std::nullopt;
}

}  // namespace lorvane
