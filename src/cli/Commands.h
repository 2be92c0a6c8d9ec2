#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/CommandProgram.h"

namespace lorvane {

// The commands of lorvane-cli. Each gives its exit status and raises CommandFailure with the reason
// when it can't be done, UsageFailure when that is how it was written; then every table and file is
// as it was.

/// A kind of payee and one of the company's industries.
struct PayeeOptions {
  bool employees = true;
  /// "A" to "F".
  std::string industry;
};

struct ListOptions {
  bool employees = true;
  /// As CSV with a heading row.
  bool csv = false;
};

struct PayOptions {
  PayeeOptions payees;
  /// CSV with the payees' ids and the amounts; a heading row is allowed.
  std::string paymentsFile;
};

struct ImportOptions {
  bool employees = true;
  /// A spreadsheet, or a CSV file.
  std::string sheet;
  /// How many columns to take; nothing for all of the layout.
  std::optional<int> columns;
  bool skipPeopleOnFile = false;
};

struct PostOptions {
  PayeeOptions payees;
  std::string date;
  /// The payees to post; empty for all.
  std::vector<std::int32_t> ids;
};

struct RemittanceOptions {
  /// An empty industry stands for all.
  PayeeOptions payees;
  std::string from;
  std::string to;
  /// A file whose ending names its kind; empty for text on standard output.
  std::string output;
};

struct ReportOptions {
  /// One of ReportNames().
  std::string name;
  /// Empty for the company's own.
  std::string year;
  /// As for RemittanceOptions.
  std::string output;
};

int RunNew(const CommandOptions& options);
int RunShow(const CommandOptions& options, bool asJson);
int RunList(const CommandOptions& options, const ListOptions& people);
/// `deep` checks the books, too.
int RunCheck(const CommandOptions& options, bool deep);
int RunSql(const CommandOptions& options, const std::string& statement);
int RunImportSheet(const CommandOptions& options, const ImportOptions& import);
/// Copies the sub-contractors of another company's data file.
int RunImportCompany(const CommandOptions& options, const std::string& source);
int RunPay(const CommandOptions& options, const PayOptions& pay);
int RunPost(const CommandOptions& options, const PostOptions& post);
int RunRemittance(const CommandOptions& options, const RemittanceOptions& remittance);
int RunReport(const CommandOptions& options, const ReportOptions& report);
/// What `report` can make.
[[nodiscard]] std::vector<std::string> ReportNames();
/// An empty year stands for the one that the procedure proposes.
int RunCloseYear(const CommandOptions& options, const std::string& givenYear);
int RunCompact(const CommandOptions& options);
int RunBackup(const CommandOptions& options);
/// Lists the backups of a company, whether or not its data file is there.
int RunBackups(const CommandOptions& options);
/// `backup` is a backup's folder, or the data file in it.
int RunRestore(const std::string& backup, const std::string& folder);
int RunResetMaximum(const CommandOptions& options, const std::string& amount);
/// The year is the one that is closed: the rates are the next year's.
int RunRollRates(const CommandOptions& options, const std::string& year);

// The published rates of all companies; no company's file is needed.
int RunRatesList(const CommandOptions& options);
int RunRatesExport(const CommandOptions& options, const std::string& year);
/// Shows what the sheet changes, asks, and changes it.
int RunRatesImport(const CommandOptions& options, const std::string& year, const std::string& path);

}  // namespace lorvane
