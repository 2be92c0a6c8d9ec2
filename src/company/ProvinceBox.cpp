#include "company/ProvinceBox.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lorvane {
namespace {

constexpr std::array kProvinces{
    "NF", "NS", "NB", "PE", "PQ", "ON", "MB", "SK", "AB", "BC", "NWT", "YK", "NUN", "AL", "AK",
    "AS", "AZ", "AR", "CA", "CO", "CT", "DE", "DC", "FM", "FL", "GA",  "GU", "HI",  "ID", "IL",
    "IN", "IA", "KS", "KY", "LA", "ME", "MH", "MD", "MA", "MI", "MN",  "MS", "MO",  "MT", "NE",
    "NV", "NH", "NJ", "NM", "NY", "NC", "ND", "MP", "OH", "OK", "OR",  "PW", "PA",  "PR", "RI",
    "SC", "SD", "TN", "TX", "UT", "VT", "VI", "VA", "WA", "WV", "WI",  "WY"};
constexpr int kCanadian = 13;

}  // namespace

ProvinceBox::ProvinceBox(Screen& screen, std::string name, Places places)
    : ComboBox(screen, std::move(name)) {
  const auto* const end =
      places == Places::kCanada ? kProvinces.begin() + kCanadian : kProvinces.end();
  std::for_each(kProvinces.begin(), end, [this](const char* province) { Add(province); });
}

void ProvinceBox::Show(const std::string& code) {
  shown_ = code;
  const auto* const end = kProvinces.begin() + Count();
  const auto* const offered = std::find(kProvinces.begin(), end, code);
  SetListIndex(offered == end ? -1 : static_cast<int>(offered - kProvinces.begin()));
}

const std::string& ProvinceBox::Code() const { return ListIndex() < 0 ? shown_ : Text(); }

}  // namespace lorvane
