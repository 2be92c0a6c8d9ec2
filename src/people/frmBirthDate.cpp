#include "people/frmBirthDate.h"

#include "basic/Text.h"
#include "people/NoDate.h"
#include "screen/ScreenServices.h"
#include "screen/TextBox.h"

namespace lorvane {

frmBirthDate::frmBirthDate(ScreenContext context)
    : Screen(context, "frmBirthDate", "Select a Date") {
  calDate.OnClick = [this] {
    Write(ShortDate(*calDate.Date()));
    Close();
  };
  cmdNoDate.OnClick = [this] {
    calDate.SetDate(std::nullopt);
    Close();
  };
}

void frmBirthDate::Unload() {
  if (!calDate.Date()) {
    Write(kNoDateShown);
  }
}

std::optional<std::string> frmBirthDate::Property(std::string_view name) const {
  if (EqualsNoCase(name, "SelectDate")) {
    return std::to_string(SelectDate);
  }
  return std::nullopt;
}

void frmBirthDate::Write(const std::string& date) const {
  const bool birth = SelectDate == kBirth;
  const Screen* caller = context_.services.FindScreen(birth ? "frmEmployees" : "frmSubContractor");
  Control* field = caller == nullptr ? nullptr : caller->Find(birth ? "txtBirth" : "txtExpiry");
  if (auto* text = dynamic_cast<TextBox*>(field)) {
    text->SetText(date);
  }
}

}  // namespace lorvane
