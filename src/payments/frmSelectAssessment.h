#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "basic/IndustrySlot.h"
#include "payments/EmployeeList.h"
#include "payments/PaymentMenus.h"
#include "payments/SubContractorList.h"
#include "screen/Buttons.h"
#include "screen/ListView.h"
#include "screen/Lists.h"
#include "screen/Screen.h"

namespace lorvane {

/// The payment window: the user picks a kind of payee and an industry, types this period's payments
/// against the people of that industry, saves them as working entries, and posts them.
///
/// The list is the working memory: every value is held as text in its columns.
class frmSelectAssessment : public Screen {
 public:
  explicit frmSelectAssessment(ScreenContext context);

  Frame fraAssessment{*this, "fraAssessment", "Assessment Type"};
  OptionButton optEmployee{*this, "optEmployee", "fraAssessment", "Employee"};
  OptionButton optSubContractor{*this, "optSubContractor", "fraAssessment", "Sub-Contractor"};
  Frame fraInfo{*this, "fraInfo"};
  Label lblSelectIndustry{*this, "lblSelectIndustry", "Select the industry"};
  ListBox lstIndustries{*this, "lstIndustries"};
  Label lblListCount{*this, "lblListCount"};
  ListView lvwPayments{*this, "lvwPayments", true};
  PaymentMenus menus{*this};

  void Load() override;
  [[nodiscard]] bool QueryUnload() override;
  void Unload() override;
  [[nodiscard]] std::optional<std::string> Property(std::string_view name) const override;
  /// "UndoLast", "RefreshList", "DataSave".
  bool Call(std::string_view operation) override;

  /// Brings the row last opened for entry back to what its record holds.
  void UndoLast();
  /// Reads the list again and forgets what wasn't saved.
  void RefreshList();
  /// Saves every row of the list as a working entry. Raises 13 for a row that should show a number
  /// and doesn't: the rows before it are saved.
  void DataSave();

  /// For the amount dialog: puts an amount into the selected row. Raises 6 when it is too large.
  void RecordAmount(const std::string& amountText);
  /// For the amount dialog: selects the row behind the selected one; past the last, none.
  void AdvanceSelection();

 private:
  void ConnectControls();
  void LoadIndustryList();
  void ApplyScreenDefaults();
  void SaveScreenDefaults();

  [[nodiscard]] PayeeList& Payees();
  /// The slot of the selected industry; raises 381 when none is selected.
  [[nodiscard]] IndustrySlot SelectedSlot() const;
  void SetListColumns(const PayeeList& payees);
  void LoadRows(PayeeList& payees);
  void SaveRows(PayeeList& payees);
  void ChangePayees(PayeeList& chosen, PayeeList& other, bool disableUndo);

  void OpenEntry();
  void FindInList();
  void SelectAll();
  void Post();
  void ConfirmAndPost();
  void CancelOrClose();
  void OpenCalculator();
  void OpenPeople(const char* screen);

  void ToggleEditState();
  void MarkDirty();
  void SetSaveAndUndo(bool enabled);

  EmployeeList employees_;
  SubContractorList subContractors_;
  /// A rate in dollars per hundred for each slot, as text; "0" for a slot that isn't in use.
  std::vector<std::string> industryRates_;
  std::int16_t lastEditedRow_ = 0;
  bool unsavedEntries_ = false;
};

}  // namespace lorvane
