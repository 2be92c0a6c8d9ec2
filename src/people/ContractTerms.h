#pragma once

#include <string_view>

namespace lorvane {

/// The type that stands for none; a sub-contractor is to be given another.
inline constexpr const char* kContractNotAssigned = "Not Assigned";

/// What a contract type means for a sub-contractor.
struct ContractTerms {
  const char* type;
  /// The part of a payment that counts as labour: "50%".
  const char* percent;
  /// Whether there is a clearance letter, which expires.
  bool hasExpiry;
};

/// The terms of a contract type; null for a type that isn't one of the eight with terms.
[[nodiscard]] const ContractTerms* FindContractTerms(std::string_view type);

}  // namespace lorvane
