#pragma once

#include <string>

#include "screen/ScreenContext.h"
#include "yearend/Compaction.h"

namespace lorvane {

/// Closes a company's year: archives the data file and the configuration file in a folder named
/// after the year, empties the payment history, sets the accumulated wages to zero, moves the
/// configuration on to the next year and compacts the data file.
///
/// Works on the open company of the session. What a step tells the user is told by the step; errors
/// that a step doesn't tell are raised.
class cYearEnd {
 public:
  explicit cYearEnd(ScreenContext context) : context_(context) {}

  /// The year being closed, four digits.
  std::string Year;
  /// The company's folder, with its closing separator.
  std::string Destination;

  /// Archives the company and closes the year, and tells the user when it is done. False, with the
  /// payroll as it was, when the archive could not be made.
  bool PerformYE();

  /// Deletes every row of the two history tables that has a date of creation, of whatever year.
  [[nodiscard]] bool DeleteHistory();
  /// Sets the yearly maximum of every employee.
  [[nodiscard]] bool ResetMaxContrib(double amount);
  /// Sets the accumulated wages of every employee to zero, and the date of the last entry to the
  /// first day of the next year. Raises 13 when the year is no number.
  [[nodiscard]] bool ResetAccWages();
  /// Makes the archive's folder. False, and told, when there is one.
  [[nodiscard]] bool CreateYEFolder();
  /// Copies the data file as it stands and the configuration file into the archive's folder, and
  /// marks the archive. False, and told, when that fails; no half-written file is left.
  [[nodiscard]] bool CopyYEFiles();
  /// Marks the configuration file at the path as that of a closed year.
  void LabelYEIni(const std::string& path);
  /// Takes the company's rates from the published table of the year after Year. Rates that it has
  /// are stored even when others are missing; a failure is told and stores none.
  [[nodiscard]] bool UpdateRates();
  /// Compacts the data file. The session has a new connection to it afterwards; nothing is told.
  Compaction ShowCompactDatabase_ADO();
  /// Steps the year on to which payments may be posted, whatever Year says. Raises 13 when the
  /// stored value is no number.
  void ResetCurrentYear();

 private:
  [[nodiscard]] std::string ArchiveFile(const std::string& name) const;
  [[nodiscard]] std::string NextYear() const;
  void CopyDataFile(const std::string& destination);
  void ResetWages();
  void StoreLastEntry();
  /// The codes that the table doesn't have, as the user is told them.
  [[nodiscard]] std::string TakeRates();

  ScreenContext context_;
};

}  // namespace lorvane
