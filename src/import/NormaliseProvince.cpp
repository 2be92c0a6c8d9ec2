#include "import/NormaliseProvince.h"

#include <algorithm>
#include <array>

namespace lorvane {
namespace {

constexpr std::size_t kMostSpellings = 8;

struct ProvinceSpellings {
  std::string_view code;
  // Fewer leave empty texts at the end, which match nothing.
  std::array<std::string_view, kMostSpellings> spellings;
};

// In the order in which they are compared.
constexpr std::array kProvinces{
    ProvinceSpellings{"NF", {"NEWFOUNDLAND", "NFLD.", "NF"}},
    ProvinceSpellings{"NS", {"NOVA SCOTIA", "N.S.", "NS.", "NS"}},
    ProvinceSpellings{"NB", {"NEW BRUNSWICK", "N.B.", "NB.", "NB"}},
    ProvinceSpellings{"PE", {"PRINCE EDWARD ISLAND", "P.E.I.", "PEI.", "PEI", "P.E.", "PE.", "PE"}},
    ProvinceSpellings{"PQ", {"QUEBEC", "Q.U.E.", "QUE.", "QUE", "PQ.", "P.Q.", "PQ"}},
    ProvinceSpellings{"ON", {"ONTARIO", "ONT", "ONT.", "O.N.T.", "ON", "O.N.", "ON."}},
    ProvinceSpellings{"MB", {"MANITOBA", "MAN.", "M.A.N.", "MN", "MB", "M.B.", "MB."}},
    ProvinceSpellings{"SK", {"SASKATCHEWAN", "SASK.", "SASK", "S.A.S.K.", "SK", "S.K.", "SK."}},
    ProvinceSpellings{"AB", {"ALBERTA", "ALTA", "ALB", "A.L.B.", "AB", "A.B.", "AB."}},
    ProvinceSpellings{"BC", {"BRITISH COLUMBIA", "BC.", "B.C.", "BC"}},
    ProvinceSpellings{"NWT",
                      {"NORTH WEST TERRITORIES", "NORTHWEST TERRITORIES", "N.W.T.", "NWT.", "NWT",
                       "NT", "N.T.", "NT."}},
    ProvinceSpellings{"YK",
                      {"YUKON TERRITORY", "YUKON", "YK", "YK.", "Y.K.", "YUK.", "YUK", "Y.U.K."}},
    ProvinceSpellings{"NUN", {"NUNAVUT", "NU.", "N.U.", "NUN", "N.U.N.", "NUN."}},
};

}  // namespace

std::optional<std::string_view> FindProvince(std::string_view text) {
  const auto* const found =
      std::find_if(kProvinces.begin(), kProvinces.end(), [&](const ProvinceSpellings& province) {
        return !text.empty() && std::find(province.spellings.begin(), province.spellings.end(),
                                          text) != province.spellings.end();
      });
  return found == kProvinces.end() ? std::nullopt : std::optional(found->code);
}

std::string_view NormaliseProvince(std::string_view text) {
  constexpr std::string_view kOtherwise = "NS";
  return FindProvince(text).value_or(kOtherwise);
}

}  // namespace lorvane
