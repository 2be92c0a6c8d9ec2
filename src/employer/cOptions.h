#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "data/cINI.h"
#include "screen/ScreenContext.h"

namespace lorvane {

/// Who answers to the board for a matter, or where the business is; there Name, Phone and Fax stay
/// empty.
struct EmployerContact {
  std::string Name;
  std::string Street;
  std::string City;
  /// Province code.
  std::string Province;
  std::string PostalCode;
  std::string Phone;
  std::string Fax;
  /// "No" once the contact was saved. Anything else means the company's own address.
  std::string SameAs;
};

/// What an employer tells the board each year besides the money.
struct EmployerOptions {
  EmployerContact Claim;
  EmployerContact Finan;
  EmployerContact Loc;
  // "Yes" or "No": who prepares the payroll.
  std::string Internal;
  std::string External;
  std::string ServiceProvider;
  std::string FinancialInstitution;
  std::string AcctNo;
  std::string MainBusiness;
};

/// A key of the configuration file, and the option that it holds.
struct OptionKey {
  const char* name;
  std::string* value;
};

/// A section of the configuration file, with its keys in their order.
struct OptionSection {
  const char* name;
  std::vector<OptionKey> keys;
  /// Its lines are read by their place, not by their key.
  bool byPlace = true;
};

/// The sections that hold the options, in the order of the file.
[[nodiscard]] std::vector<OptionSection> SectionsOf(EmployerOptions& options);

/// The employer's options as the company's configuration file keeps them.
class cOptions : public EmployerOptions {
 public:
  static constexpr const char* kYes = "Yes";
  static constexpr const char* kNo = "No";
  /// Characters of one value. A whole section of such values is read back without a cut.
  static constexpr std::size_t kLongestValue = cINI::kValueLimit;

  explicit cOptions(ScreenContext context);

  /// Fills the fields from the configuration file. False when lines are missing, after a box has
  /// told error 9: so for a company that never saved its options. What is there is filled all the
  /// same.
  ///
  /// A section's lines are taken by their place, and a value by the length of the key that belongs
  /// there: lines in another order give shifted values.
  [[nodiscard]] bool GetOptions(const std::string& path);
  /// Writes every field. False when that fails, after a box has told why.
  [[nodiscard]] bool SaveOptions(const std::string& path);

 private:
  /// False when the section's lines end before the keys do.
  [[nodiscard]] bool ReadSection(const std::string& path, const OptionSection& section) const;
  /// Whether the file holds what was to be written.
  [[nodiscard]] bool IsStored(const std::string& path);
  template <typename Work>
  bool Guarded(Work work) const;

  ScreenContext context_;
};

}  // namespace lorvane
