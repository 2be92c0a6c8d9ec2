#include "company/IndustryPage.h"

#include <algorithm>
#include <initializer_list>

#include "basic/Text.h"
#include "screen/ScreenServices.h"

namespace lorvane {
namespace {

constexpr std::size_t kLongestDescription = 100;

}  // namespace

IndustryPage::IndustryPage(Screen& screen)
    : lblDescription(screen, "lblDescription", "Description"),
      lblSic(screen, "lblSic", "SIC"),
      lblRate(screen, "lblRate", "Rate"),
      lblIdentifier(screen, "lblIdentifier", "Identifier"),
      mnuPopUp(screen, "mnuPopUp", "", true),
      mnuPoRename(mnuPopUp, "mnuPoRename", "Rename"),
      screen_(screen) {
  for (const IndustrySlot slot : kAllSlots) {
    rows_[slot] = std::make_unique<IndustryRow>(screen, slot);
    IndustryRow& row = *rows_[slot];
    for (Control* control : std::initializer_list<Control*>{&row.chkInd, &row.txtSic, &row.cmdRates,
                                                            &row.txtRate, &row.txtIdentifier}) {
      control->TabPage = kTabPage;
    }
  }
  for (Label* label : {&lblDescription, &lblSic, &lblRate, &lblIdentifier}) {
    label->TabPage = kTabPage;
  }
  mnuPoRename.OnClick = [this] { Rename(); };
}

bool IndustryPage::AnyInUse() const {
  return std::any_of(rows_.begin(), rows_.end(),
                     [](const auto& row) { return row->chkInd.Checked(); });
}

const IndustryRow* IndustryPage::FocusedRow() const {
  const auto* const found = std::find_if(
      rows_.begin(), rows_.end(), [&](const auto& row) { return &row->chkInd == screen_.Focus(); });
  return found == rows_.end() ? nullptr : found->get();
}

void IndustryPage::Show(const cIndustry& industries) {
  for (const auto& row : rows_) {
    row->ShowUnused();
  }
  ShowUsed(industries);
}

void IndustryPage::ShowUsed(const cIndustry& industries) {
  for (const auto& row : rows_) {
    row->Show(industries);
  }
}

void IndustryPage::ShowNew() {
  for (const auto& row : rows_) {
    row->ShowNew();
  }
}

void IndustryPage::CopyTo(cIndustry& industries) const {
  for (const auto& row : rows_) {
    row->CopyTo(industries);
  }
}

void IndustryPage::Rename() {
  CheckBox& box = Row(toRename_).chkInd;
  const std::string given = screen_.Context().services.InputBox(
      "Enter the new industry description (100 characters max.).", "Description", box.Caption());
  if (given.empty()) {
    return;
  }
  box.SetCaption(Left(given, kLongestDescription));
  if (OnRenamed) {
    OnRenamed();
  }
}

}  // namespace lorvane
