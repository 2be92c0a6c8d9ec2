#include "company/frmSIC.h"

#include <string>
#include <utility>
#include <vector>

#include "basic/Money.h"
#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "company/frmCompany.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modTextBox.h"

namespace lorvane {
namespace {

constexpr int kFirstYear = 2000;
constexpr int kLastYear = 2010;
constexpr std::size_t kDigitsOfYear = 4;

}  // namespace

frmSIC::frmSIC(ScreenContext context, frmCompany& company)
    : Screen(context, "frmSIC", "SIC Search"), company_(company), rates_(context.session) {
  constexpr int kCodeWidth = 900;
  constexpr int kDescriptionWidth = 5400;
  lvwSic.SetColumns({{"SIC", kCodeWidth},
                     {"Description", kDescriptionWidth},
                     {"Rate", kCodeWidth, ListView::Alignment::kRight}});
  lvwSic.SetTip("Click on the column header to sort");
  for (int year = kFirstYear; year <= kLastYear; ++year) {
    cboYear.Add(std::to_string(year));
  }
  ConnectControls();
}

void frmSIC::ConnectControls() {
  cboYear.OnClick = [this] { SelectTypedYear(); };
  // Years outside the list are typed; what isn't a whole year yet waits for more digits or Enter.
  cboYear.OnChange = [this] {
    if (Length(cboYear.Text()) == kDigitsOfYear) {
      SelectTypedYear();
    }
  };
  cboYear.OnKeyPress = [this](int& key) {
    if (key == key_code::kEnter) {
      key = key_code::kNone;
      SelectTypedYear();
    }
  };
  txtSIC.OnGotFocus = [this] { SelectText(txtSIC); };
  txtSIC.OnKeyPress = [this](int& key) {
    if (key == key_code::kEnter) {
      key = key_code::kNone;
      Search();
    }
  };
  cmdGo.OnClick = [this] { Search(); };
  lvwSic.OnColumnClick = [this](std::size_t column) { lvwSic.SortBy(column); };
  lvwSic.OnDoubleClick = [this] { TakeSelected(); };
  cmdOK.OnClick = [this] { TakeSelected(); };
  cmdClose.OnClick = [this] { Close(); };
  cmdClose.SetButtonRole(Command::Role::kCancel);
}

void frmSIC::Load() {
  CentreForm(*this);
  cboYear.SetText(std::to_string(context_.services.Now().year));
}

void frmSIC::SelectTypedYear() {
  context_.services.SetPointer(pointer::kHourglass);
  SelectYear(cboYear.Text());
  context_.services.SetPointer(pointer::kDefault);
}

void frmSIC::SelectYear(const std::string& year) {
  lvwSic.Clear();
  try {
    std::vector<ListView::Row> rows;
    for (PublishedRate& rate : rates_.Read(year)) {
      rows.push_back({{std::move(rate.code), std::move(rate.description), Plain(rate.rate)}});
    }
    lvwSic.AddRows(std::move(rows));
  } catch (const RuntimeError& error) {
    if (error.Number() == error_number::kEngineUnknownTable) {
      context_.services.MsgBox("The " + year +
                                   " rates are not currently available.\r\n\r\n"
                                   "If you do not have the current year rates, please contact\r\n"
                                   "us for an update or call the Lorvane (1.877.211.9267).",
                               box::kInformation, year + " Rates");
    } else {
      ShowError(context_, error, box::kExclamation);
    }
  }
}

void frmSIC::Search() {
  const std::string& text = txtSIC.Text();
  if (text.empty()) {
    return;
  }
  const int row = FindRow(text);
  if (row < 0) {
    context_.services.MsgBox("No match found.", box::kInformation, "Not found");
    return;
  }
  lvwSic.SetSelected(row, true);
  lvwSic.EnsureVisible(row);
  SetFocus(lvwSic);
}

int frmSIC::FindRow(const std::string& text) const {
  const std::string wanted = ToLower(text);
  // A number is looked for among the codes, anything else behind them.
  const std::size_t from = IsNumeric(text) ? 0 : 1;
  const std::size_t to = from == 0 ? 1 : lvwSic.Columns().size();
  int inside = -1;
  for (int row = 0; row < lvwSic.Count(); ++row) {
    for (std::size_t place = from; place < to; ++place) {
      const std::size_t at = ToLower(lvwSic.Cell(row, place)).find(wanted);
      if (at == 0) {
        return row;
      }
      if (at != std::string::npos && inside < 0) {
        inside = row;
      }
    }
  }
  return inside;
}

void frmSIC::TakeSelected() {
  const int row = lvwSic.SelectedIndex();
  const std::optional<IndustrySlot> slot = SlotOfNumber(SicIndex + 1);
  if (row >= 0 && slot) {
    company_.TakeRate(*slot, lvwSic.Cell(row, 0), lvwSic.Cell(row, 1), lvwSic.Cell(row, 2));
  }
  Close();
}

std::optional<std::string> frmSIC::Property(std::string_view name) const {
  if (EqualsNoCase(name, "SicIndex")) {
    return std::to_string(SicIndex);
  }
  return std::nullopt;
}

bool frmSIC::SetProperty(std::string_view name, std::string_view value) {
  if (!EqualsNoCase(name, "SicIndex")) {
    return false;
  }
  SicIndex = ToInteger(value);
  return true;
}

}  // namespace lorvane
