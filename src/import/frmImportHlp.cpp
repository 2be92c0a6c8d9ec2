#include "import/frmImportHlp.h"

#include <array>
#include <string>

#include "basic/Text.h"
#include "screen/modForm.h"

namespace lorvane {
namespace {

constexpr const char* kNoHeadings =
    "If your spreadsheet contains headings, remove them before importing.";

// The two name limits stand the other way round than the import cuts.
constexpr std::array kEmployeeLines{
    "Social insurance numbers must be in the following format: ###-###-###",
    "Last names cannot exceed 75 characters.",
    "First names cannot exceed 50 characters.",
    "Middle initial cannot exceed 1 character.",
    kNoHeadings,
};

constexpr std::array kSubContractorLines{
    "Business numbers supplied must not exceed 9 characters.",
    "Sub-contractor names cannot exceed 75 characters.",
    "Addresses cannot exceed 50 characters.",
    "City names cannot exceed 30 characters.",
    "Provinces must be the two letter abbreviations (in capitals).",
    kNoHeadings,
};

template <typename Lines>
void AddLabels(Screen& screen, std::deque<Label>& labels, const std::string& stem,
               const Lines& lines) {
  for (const char* line : lines) {
    labels.emplace_back(screen, stem + std::to_string(labels.size()), line);
  }
}

void Show(Frame& frame, std::deque<Label>& labels, bool visible) {
  frame.SetVisible(visible);
  for (Label& label : labels) {
    label.SetVisible(visible);
  }
}

}  // namespace

frmImportHlp::frmImportHlp(ScreenContext context) : Screen(context, "frmImportHlp", "Import Help") {
  AddLabels(*this, lblExcelEmp, "lblExcelEmp_", kEmployeeLines);
  AddLabels(*this, lblExcelSubs, "lblExcelSubs_", kSubContractorLines);
  cmdOK.SetButtonRole(Command::Role::kCancel);
  cmdOK.OnClick = [this] { Close(); };
}

void frmImportHlp::Load() {
  CentreForm(*this);
  Show(fraExcelEmp, lblExcelEmp, Employee);
  Show(fraExcelSubs, lblExcelSubs, !Employee);
}

bool frmImportHlp::SetProperty(std::string_view name, std::string_view value) {
  if (!EqualsNoCase(name, "Employee")) {
    return false;
  }
  Employee = EqualsNoCase(value, "true");
  return true;
}

}  // namespace lorvane
