#include "payments/frmPayment.h"

#include "basic/RuntimeError.h"
#include "payments/frmSelectAssessment.h"
#include "screen/ScreenServices.h"
#include "screen/modForm.h"
#include "screen/modTextBox.h"

namespace lorvane {

frmPayment::frmPayment(ScreenContext context, frmSelectAssessment& list)
    : Screen(context, "frmPayment", "Enter Payment"), list_(list) {
  txtAmount.SetTip("Amount of the payment");
  txtAmount.OnGotFocus = [this] { SelectText(txtAmount); };
  txtAmount.OnKeyPress = [this](int& key) { AmountKeyPress(key); };
}

void frmPayment::AmountKeyPress(int& key) {
  if (key == key_code::kEnter) {
    key = key_code::kNone;
    RecordAmount();
    list_.AdvanceSelection();
    Close();
  } else if (key == key_code::kEscape) {
    key = key_code::kNone;
    Close();
  } else {
    key = FilterKeyPressNumeric(key, false);
  }
}

void frmPayment::RecordAmount() {
  try {
    list_.RecordAmount(txtAmount.Text());
  } catch (const RuntimeError& error) {
    ShowError(context_, error, box::kCritical);
  }
}

}  // namespace lorvane
