#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "company/GeneralPage.h"
#include "company/IndustryPage.h"
#include "company/cCompany.h"
#include "company/cIndustry.h"
#include "screen/Buttons.h"
#include "screen/Lists.h"
#include "screen/Screen.h"
#include "screen/TabStrip.h"
#include "screen/TextBox.h"

namespace lorvane {

/// The company window: the employer on one page, the six industries on the other. The one place
/// where the legal name reaches the configuration file, and thereby the main window's title.
///
/// OK doesn't save: the question on the way out does.
class frmCompany : public Screen {
 public:
  explicit frmCompany(ScreenContext context);

  ListBox lstCompany{*this, "lstCompany"};
  TabStrip sstCompany{*this, "sstCompany", {"General", "Industries"}};
  GeneralPage generalPage{*this};
  IndustryPage industryPage{*this};
  Command cmdOK{*this, "cmdOK", "&OK"};
  Command cmdApply{*this, "cmdApply", "&Apply"};
  Command cmdClose{*this, "cmdClose", "&Close"};
  /// Takes the published rates of the company's current year. It works on what is stored, so it is
  /// on while nothing is changed.
  Command cmdUpdateRates{*this, "cmdUpdateRates", "Update rates...",
                         "Take the published rates of the current year"};

  /// When true at closing, the payment list behind is read again and the flag cleared.
  bool RefreshAssessment = false;
  /// Set by the set-up of a new company; false again once the name is saved. Nothing reads it.
  bool Setup = false;

  void Load() override;
  void Activate() override;
  [[nodiscard]] bool QueryUnload() override;
  void Unload() override;
  [[nodiscard]] std::optional<std::string> Property(std::string_view name) const override;
  bool SetProperty(std::string_view name, std::string_view value) override;
  /// "RenameIndustry" and "OpenRenameMenu": what the keyboard does in place of the right mouse
  /// button on the check box that has the focus. Nothing happens while another control has it.
  bool Call(std::string_view operation) override;

  /// For the rate look-up: fills a slot's code, description and rate, which turns the slot on.
  void TakeRate(IndustrySlot slot, const std::string& code, const std::string& description,
                const std::string& rate);

 protected:
  /// Escape takes back what was typed since the last save, or leaves when nothing was.
  void KeyPreview(int& key) override;

 private:
  using KeyFilter = std::function<int(int)>;

  void ConnectControls();
  void ConnectGeneralPage();
  void ConnectIndustryPage();
  void ConnectButtons();
  void ConnectField(TextBox& box, const KeyFilter& filter = {});
  void ConnectKeys(Control& control, const KeyFilter& filter = {});
  /// Keeps the focus on an empty field and says what belongs there.
  void Require(TextBox& box, const char* sentence);
  void OpenRenameMenu(IndustrySlot slot);

  void FillCompanies();
  void ReadCompany();
  void ReadIndustries();
  void ShowNewRecord();
  void Restore();

  void UpdateRates();
  void CopyToRecords();
  bool Save();
  void StoreName();
  void AcceptAndClose();

  /// Runs something whose effects on the controls are no edits of the user.
  template <typename Work>
  void WithoutEditing(Work work);
  void MarkChanged();
  void ForgetChanges();

  cCompany company_;
  cIndustry industries_;
  bool newRecord_ = false;
  bool changed_ = false;
  bool loading_ = false;
};

}  // namespace lorvane
