#pragma once

#include <functional>
#include <string>

#include "basic/RuntimeError.h"
#include "data/DataConnection.h"

namespace lorvane {

/// Brings data files made by earlier releases up to date in place. There are no version numbers:
/// the shape of a table is its version.
///
/// Every operation works on a connection of its own, opened as `connection` opens its file, and
/// gives true when it ends normally. What was added before a step that is refused stays; a machine
/// that fails or a disk that fills up leaves the table as it was, so that the next opening begins
/// again.
class cAppUpdates {
 public:
  /// `connection` outlives this object; it may be open or closed.
  explicit cAppUpdates(const DataConnection& connection) : connection_(&connection) {}

  /// Told of the errors that the user is to see; when empty nobody is told.
  std::function<void(const RuntimeError&)> OnError;

  /// Looks at the number of a table's columns and adds what a known earlier shape lacks. False for
  /// a table of any other shape or name, for an addition that failed, and for a file that can't be
  /// read.
  [[nodiscard]] bool VerifyTables(const std::string& dataSource, const std::string& tableName);

  /// SicA to SicF of tblIndustries.
  bool AddSic2DB();
  /// Makes the six descriptions of a table 100 characters wide.
  bool ModifyField(const std::string& tableName);
  /// Name and Industry of tblSubRemittance.
  bool AddSubName();
  bool AddIndustry2Sub();
  /// The names and Industry of tblEmpRemittance.
  bool AddEmpLFNames();
  bool AddIndustry2Emp();

  /// Whether the table has its one key counter, whether or not the table is there.
  [[nodiscard]] bool CheckForPrincipals();
  [[nodiscard]] bool CheckForAssets();
  /// Adds the key counter, then the table.
  bool AddPrincipalTable();
  bool AddAssetTable();

  /// Address, phones, gender, birth date, health card and occupation in tblEmployees.
  bool AddEmployeeFields();
  /// Expiry and the contacts in tblSubContract.
  bool AddSubConFields();
  /// tblAssessable with the standard contract types, then its key counter.
  bool AddAssessableTable();

 private:
  using Work = std::function<void(EngineConnection&)>;
  [[nodiscard]] bool Run(const Work& work) const;
  [[nodiscard]] bool HasKeyCounter(const char* table) const;

  const DataConnection* connection_;
};

}  // namespace lorvane
