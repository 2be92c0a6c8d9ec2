#pragma once

#include "screen/Screen.h"
#include "screen/TextBox.h"

namespace lorvane {

class frmSelectAssessment;

/// The amount dialog of the payment list: Enter records the amount and moves on to the next row,
/// Escape leaves the row as it was.
class frmPayment : public Screen {
 public:
  /// `list` outlives the dialog and is the window whose selected row is entered.
  frmPayment(ScreenContext context, frmSelectAssessment& list);

  TextBox txtAmount{*this, "txtAmount"};

  /// Works out payment and assessable amount of the typed text and writes them to the list's
  /// selected row. Every error is told here.
  void RecordAmount();

 private:
  void AmountKeyPress(int& key);

  frmSelectAssessment& list_;
};

}  // namespace lorvane
