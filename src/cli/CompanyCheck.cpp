#include "cli/CompanyCheck.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/Files.h"
#include "data/Schema.h"
#include "data/modDataAccess.h"
#include "employer/cOptions.h"

namespace lorvane {
namespace {

// Sections whose lines are read by their place.
constexpr const char* kAssessment = "Assessment";
constexpr std::array kAssessmentKeys{"LastEntry", "Default", "Industry", "CurrentYear"};
constexpr const char* kRemittance = "Remittance";
constexpr std::array kRemittanceKeys{"Preview", "Copies", "Export", "Nav",  "Progress",
                                     "Refresh", "Search", "Zoom",   "From", "To"};

std::string PlaceInFile(const Session& session, std::string_view section) {
  return "'" + session.gConfigFile + "', section [" + std::string(section) + "]";
}

bool HasConfigFile(const Session& session) {
  return session.files.Exists(FindWithoutCase(session.gConfigFile));
}

template <typename Keys>
std::vector<std::string> CheckKeyOrder(const Session& session, const char* section,
                                       const Keys& keys) {
  const std::vector<std::string> lines = session.Ini().SectionGet(section);
  if (lines.empty()) {
    return {"'" + session.gConfigFile + "' has no section [" + section + "]."};
  }
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const std::string line = i < lines.size() ? lines[i] : std::string();
    if (!EqualsNoCase(line.substr(0, line.find('=')), keys[i])) {
      return {PlaceInFile(session, section) + ", line " + std::to_string(i + 1) + " should be " +
              keys[i] + "=... but is '" + line + "'."};
    }
  }
  return {};
}

void Append(std::vector<std::string>& findings, const std::vector<std::string>& more) {
  findings.insert(findings.end(), more.begin(), more.end());
}

bool IsInteger(const std::string& text) {
  try {
    static_cast<void>(ToInteger(text));
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

const Column* FindColumn(const std::vector<Column>& columns, const std::string& name) {
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const Column& column) {
    return EqualsNoCase(column.name, name);
  });
  return found == columns.end() ? nullptr : &*found;
}

std::vector<std::string> CheckSchema(EngineConnection& connection) {
  std::vector<std::string> findings;
  for (const TableDefinition& table : CompanyTables()) {
    if (!connection.HasTable(table.name)) {
      findings.push_back("The table " + table.name + " is missing.");
      continue;
    }
    const std::vector<Column> columns = connection.ColumnsOf(table.name);
    for (const Column& wanted : table.columns) {
      const Column* column = FindColumn(columns, wanted.name);
      if (column == nullptr) {
        findings.push_back("The table " + table.name + " has no column " + wanted.name + ".");
      } else if (column->type != wanted.type) {
        findings.push_back("The column " + wanted.name + " of " + table.name +
                           " is of another type than it should be.");
      }
    }
  }
  return findings;
}

std::int64_t CountOf(EngineConnection& connection, const std::string& statement) {
  const ResultTable table = connection.Query(statement);
  return table.rows.empty() ? 0
                            : static_cast<std::int64_t>(NullToDouble(table.rows.front().front()));
}

bool HasKeyCounters(EngineConnection& connection) {
  if (!connection.HasTable("tblTableIDs")) {
    return false;
  }
  const std::vector<Column> columns = connection.ColumnsOf("tblTableIDs");
  return FindColumn(columns, "TableName") != nullptr && FindColumn(columns, "NextId") != nullptr;
}

// Every table that takes its keys from a counter; scratch tables and the counters have none.
std::vector<std::string> CheckKeyCounters(EngineConnection& connection) {
  constexpr std::array tables{"tblCompany",    "tblEmployees",  "tblSubContract", "tblEmpHistory",
                              "tblSubHistory", "tblPrincipals", "tblAssets",      "tblAssessable"};
  std::vector<std::string> findings;
  for (const std::string table : tables) {
    if (!connection.HasTable(table)) {
      continue;
    }
    const ResultTable counter =
        connection.Query("SELECT NextId FROM tblTableIDs WHERE TableName = " + QuoteText(table));
    if (counter.rows.size() != 1) {
      findings.push_back("The table " + table + " has " + std::to_string(counter.rows.size()) +
                         " key counters instead of one.");
      continue;
    }
    if (IsNull(counter.rows.front().front())) {
      findings.push_back("The key counter of " + table + " is empty, so that every new key is 1.");
      continue;
    }
    const std::vector<Column> columns = connection.ColumnsOf(table);
    const auto key = std::find_if(columns.begin(), columns.end(),
                                  [](const Column& column) { return column.isKey; });
    const auto last = static_cast<std::int64_t>(NullToDouble(counter.rows.front().front()));
    if (key == columns.end()) {
      continue;
    }
    const std::int64_t highest =
        CountOf(connection, "SELECT Max(" + key->name + ") AS Highest FROM " + table);
    if (highest > last) {
      findings.push_back("The key counter of " + table + " stands at " + std::to_string(last) +
                         ", but the highest key is " + std::to_string(highest) + ".");
    }
  }
  return findings;
}

// A company that never told its options has none of their sections.
std::vector<std::string> CheckEmployerOptions(const Session& session) {
  std::vector<std::string> findings;
  EmployerOptions options;
  for (const OptionSection& section : SectionsOf(options)) {
    if (!section.byPlace || session.Ini().SectionGet(section.name).empty()) {
      continue;
    }
    std::vector<const char*> keys;
    for (const OptionKey& key : section.keys) {
      keys.push_back(key.name);
    }
    Append(findings, CheckKeyOrder(session, section.name, keys));
  }
  return findings;
}

}  // namespace

std::vector<std::string> CheckAssessmentSettings(const Session& session) {
  if (!HasConfigFile(session)) {
    return {"'" + session.gConfigFile + "' does not exist."};
  }
  std::vector<std::string> findings = CheckKeyOrder(session, kAssessment, kAssessmentKeys);
  if (!findings.empty()) {
    return findings;
  }
  cINI ini = session.Ini();
  for (const char* key : {"Default", "Industry", "CurrentYear"}) {
    const std::string value = ini.KeyGet(kAssessment, key, "");
    if (!IsInteger(value)) {
      findings.push_back(PlaceInFile(session, kAssessment) + ": " + key + " is '" + value +
                         "', which is no whole number.");
    }
  }
  const std::string lastEntry = ini.KeyGet(kAssessment, "LastEntry", "");
  if (!IsDate(lastEntry)) {
    findings.push_back(PlaceInFile(session, kAssessment) + ": LastEntry is '" + lastEntry +
                       "', which is no date.");
  }
  return findings;
}

CompanyFindings CheckCompany(const Session& session) {
  EngineConnection& connection = session.gDataConn->Connection();
  std::vector<std::string> findings = connection.CheckIntegrity();
  if (!findings.empty()) {
    findings.insert(findings.begin(), "The file " + session.gDataConn->DataSource +
                                          " is damaged. What was found in it:");
    return {findings, false};
  }
  findings = CheckSchema(connection);
  const bool tablesAreWhole = findings.empty();
  if (connection.HasTable("tblIndustries")) {
    const std::int64_t rows = CountOf(connection, "SELECT Count(*) AS Rows FROM tblIndustries");
    if (rows != 1) {
      findings.push_back("The table tblIndustries has " + std::to_string(rows) +
                         " rows instead of one.");
    }
  }
  if (HasKeyCounters(connection)) {
    Append(findings, CheckKeyCounters(connection));
  }
  Append(findings, CheckAssessmentSettings(session));
  if (HasConfigFile(session)) {
    Append(findings, CheckKeyOrder(session, kRemittance, kRemittanceKeys));
    Append(findings, CheckEmployerOptions(session));
  }
  return {findings, tablesAreWhole};
}

}  // namespace lorvane
