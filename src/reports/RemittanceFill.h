#pragma once

#include <cstdint>
#include <string>

#include "basic/Date.h"
#include "screen/ProgressBar.h"
#include "screen/ScreenContext.h"

namespace lorvane {

/// What a remittance report says about the industries above its rows.
struct RemittanceHeadings {
  std::string IndustryDesc;
  /// The account identifiers of the industries, joined by " | ".
  std::string Identifier;
};

class Record;
struct RemittanceKind;

/// The filling of the scratch tables for a period: the rows of the payment history in a date range,
/// copied slot by slot, with the payees' names added. Nothing is summed: totals are the report's.
///
/// A caller clears first, then fills, then sets up the headings, then shows the report. Every fill
/// shows its own errors and then answers false; rows written so far stay for the next clearing.
class RemittanceFill {
 public:
  /// The number attached to "(All)" in the list of industries; 1 to 6 are the slots.
  static constexpr int kAllIndustries = 7;

  /// `progress` may be null; it never stops a calculation.
  explicit RemittanceFill(ScreenContext context, ProgressBar* progress = nullptr);

  /// Empties tblEmpRemittance over a connection of its own. Raises what the engine raises.
  void ClearEmployeeRemittance();
  /// Empties tblSubRemittance and sets `ok`. Raises what the engine raises.
  void ClearSubContractorRemittance(bool& ok);

  /// Employee payments dated from start to end, both included, of one slot (1 to 6) or, for any
  /// other number, of all: then each history row gives one row, that of its first slot with a date.
  /// True when there is something to show.
  [[nodiscard]] bool FillEmployeeRemittance(const DateTime& start, const DateTime& end,
                                            int industryItem);
  /// The same for sub-contractors.
  [[nodiscard]] bool FillSubContractorRemittance(const DateTime& start, const DateTime& end,
                                                 int industryItem);
  /// Every sub-contractor payment on file, whatever its date. True when there is any.
  [[nodiscard]] bool FillSubContractorSummary();

  /// The description and identifier of one slot; any other number leaves both as they were.
  void IndustryHeading(int industryItem, RemittanceHeadings& headings);
  /// The identifiers of all slots in use. When slot A isn't, what stood there before stays in
  /// front.
  void AllIdentifiers(RemittanceHeadings& headings);

 private:
  bool Fill(const RemittanceKind& kind, const std::string& historyStatement,
            const std::string& targetStatement, int industryItem, const char* name);
  void LookUpNames(const RemittanceKind& kind);
  void LookUpEmployeeNames();
  void LookUpSubContractorNames();
  template <typename NameRow>
  void LookUp(const char* statement, Record& payee, NameRow nameRow);

  void SetProgressMaximum(double maximum);
  void SetProgressValue(std::int16_t value);
  template <typename Operation>
  bool Trapped(Operation operation);
  template <typename Statement>
  void PassOverProgress(Statement statement);

  ScreenContext context_;
  ProgressBar* progress_;
  std::int16_t counter_ = 1;
};

}  // namespace lorvane
