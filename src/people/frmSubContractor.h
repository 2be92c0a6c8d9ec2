#pragma once

#include <string>

#include "company/ProvinceBox.h"
#include "payments/history/cHistorySubCon.h"
#include "people/PeopleScreenOf.h"
#include "people/cSubContractor.h"
#include "screen/Labelled.h"

namespace lorvane {

struct SubContractorKind {
  using Person = cSubContractor;
  using History = cHistorySubCon;
  static constexpr auto kKey = &cSubContractor::SubContractId;
  static constexpr auto kHistoryKey = &cHistorySubCon::SubContractId;
  static constexpr auto kName = &cSubContractor::Name;
  static constexpr auto kWhereNameBegins = cSubContractor::kWhereNameBegins;
  static constexpr auto kOrderByName = cSubContractor::kOrderByName;
  static constexpr auto kOrderByNameDescending = cSubContractor::kOrderByNameDescending;
};

/// The window on the company's sub-contractors. The contract type decides which part of a payment
/// counts as labour, and whether a clearance letter's expiry can be entered.
class frmSubContractor : public PeopleScreenOf<SubContractorKind> {
 public:
  explicit frmSubContractor(ScreenContext context);

  Labelled<TextBox> txtBusNum{*this, "txtBusNum", "Business No.:"};
  Labelled<TextBox> txtSubName{*this, "txtSubName", "Name:"};
  Labelled<TextBox> txtAddress{*this, "txtAddress", "Address:"};
  Labelled<TextBox> txtCity{*this, "txtCity", "City:"};
  Labelled<ProvinceBox> cboProvinces{*this, "cboProvinces",
                                     "Province: ", ProvinceBox::Places::kCanada};
  Labelled<TextBox> txtPostalCode{*this, "txtPostalCode", "Postal Code:"};
  Labelled<TextBox> txtPhone{*this, "txtPhone", "Phone:"};
  Labelled<TextBox> txtFax{*this, "txtFax", "Fax:"};
  Labelled<TextBox> txtEmail{*this, "txtEmail", "Email:"};
  Labelled<TextBox> txtDesc{*this, "txtDesc", "Description:"};
  Frame fraContract{*this, "fraContract", "Contract"};
  Labelled<ComboBox> cboContract{*this, "cboContract", "Contract type:"};
  Labelled<TextBox> txtPercent{*this, "txtPercent", "Assessable %:"};
  Labelled<TextBox> txtExpiry{*this, "txtExpiry", "Expires:"};
  Command cmdDateSelect{*this, "cmdDateSelect", "..."};
  IndustryBoxes chkInd{*this, "Industry or industries the current sub-contractor serves"};
  PeopleButtons buttons{*this};

 protected:
  void KeyPreview(int& key) override;

 private:
  void LayOut();
  void Connect();

  [[nodiscard]] IndustryBoxes& Industries() override { return chkInd; }
  [[nodiscard]] PeopleButtons& Buttons() override { return buttons; }
  [[nodiscard]] std::string EntryText() const override { return record_.Name; }
  [[nodiscard]] std::string AddedEntryText() const override { return record_.Name; }
  void LoadChoices() override;
  void RemarkOnPeople() override;
  bool ShowRecord() override;
  void ShowSaved() override;
  void ClearFields() override;
  void CopyFields() override;
  [[nodiscard]] Control& FirstField() override { return txtBusNum; }
  [[nodiscard]] bool IsComplete() override;

  void ChooseContract();
  /// False when the record's contract type isn't offered; the user has been told.
  [[nodiscard]] bool ShowContract();
  [[nodiscard]] bool ShowFields();
  void CopyContract();
  void CopyPercent();
  [[nodiscard]] bool HasName();

  TextFields<cSubContractor> business_;
  TextFields<cSubContractor> contacts_;
};

}  // namespace lorvane
