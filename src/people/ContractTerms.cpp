#include "people/ContractTerms.h"

#include <algorithm>
#include <array>

namespace lorvane {
namespace {

// They don't follow the table of contract types: a type from elsewhere, or one that a user added,
// has none, whatever percentage that table gives it.
constexpr std::array kTerms{
    ContractTerms{"Labour Only", "100%", false},
    ContractTerms{"Labour and Materials", "50%", false},
    ContractTerms{"Courier Service", "50%", false},
    ContractTerms{"Trucking and Leased Equipment", "25%", false},
    ContractTerms{"Logging (Chain Saw)", "75%", false},
    ContractTerms{"Clearance Letter Supplied", "0%", true},
    ContractTerms{"Exempt Industry", "0%", false},
    ContractTerms{kContractNotAssigned, "0%", false},
};

}  // namespace

const ContractTerms* FindContractTerms(std::string_view type) {
  const auto* found = std::find_if(kTerms.begin(), kTerms.end(),
                                   [&](const ContractTerms& terms) { return terms.type == type; });
  return found == kTerms.end() ? nullptr : found;
}

}  // namespace lorvane
