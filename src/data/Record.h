#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "basic/IndustrySlot.h"
#include "data/DataConnection.h"
#include "data/Recordset.h"
#include "data/cAppUpdates.h"

namespace lorvane {

/// How a record's class names itself and its table in texts.
struct RecordNames {
  const char* className;
  const char* table;
  const char* keyColumn;
  /// The table as the failure texts of GetNewPrimaryKey, AddNew and Update name it.
  const char* keyTable;
  const char* insertTable;
  const char* updateTable;
};

/// The template of every table's record class: a cursor with a one-row buffer.
///
/// The record's columns are plain properties of the class; moving fills them, and inserts, updates
/// and deletes are statements composed from them. A caller sets some properties and filters, calls
/// one operation and reads its boolean result, with the reason of a failure in InfoMsg(). No
/// exception leaves a record class, and nothing is ever shown by one.
class Record {
 public:
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;
  virtual ~Record() = default;

  /// Which columns OpenRecordset selects and fills; 0 is all of them.
  std::int32_t SelectFilter = 0;
  /// Which WHERE and ORDER BY are added, on the classes that have them; the numbers are the
  /// class's.
  std::int32_t WhereFilter = 0;
  std::int32_t OrderByFilter = 0;
  /// Which columns an insert or update writes; 0 again after each success.
  std::int32_t InsertFilter = 0;
  std::int32_t UpdateFilter = 0;
  // Kept for the caller; no operation reads them.
  std::int32_t Options = 1;
  std::int32_t RSType = 0;
  std::int32_t LockType = 0;

  /// Must be set before anything else. The connection outlives this object.
  void SetDataConnection(DataConnection* connection) { dataConnection_ = connection; }

  /// 0, or the number of the run-time error that ended the last operation. Failed validation and
  /// "no row changed" leave it 0.
  [[nodiscard]] std::int32_t InfoCode() const { return infoCode_; }
  /// The text for the user; empty when there is nothing to tell.
  [[nodiscard]] const std::string& InfoMsg() const { return infoMsg_; }
  /// The column that validation complained of, for FocusFieldInError; empty when none.
  [[nodiscard]] const std::string& FieldInError() const { return fieldInError_; }
  /// True when there is no current row, and after MoveLast.
  [[nodiscard]] bool Eof() const { return eof_; }
  /// The last SELECT of OpenRecordset; empty after CloseRecordset.
  [[nodiscard]] const std::string& SQL() const { return sql_; }

  /// Opens the selection and fills the properties from its first row. False when there is none,
  /// with an empty InfoMsg, or on a failure.
  bool OpenRecordset();
  /// The same, for a caller who wants one row. The cursor stays open.
  bool Find() { return OpenRecordset(); }
  bool MoveFirst();
  /// Leaves Eof() true although a row is current.
  bool MoveLast();
  /// False at the end, where it closes the cursor and so clears the filters.
  bool MoveNext();
  bool MovePrevious();
  /// Closes the cursor and clears all filters.
  void CloseRecordset();

 protected:
  explicit Record(const RecordNames& names);

  bool AddNew();
  bool Update();
  bool Delete();

  // How a text or a number goes between its property and its column.
  enum class Kind {
    kText,
    kDate,    // a date carried as text
    kAmount,  // a double, read through currency
    kNumber,  // a double
    kRate,    // per hundred in the property, a fraction of five decimals in the column
  };

  void Bind(std::string column, std::int32_t& key);
  void Bind(std::string column, std::string& text, Kind kind = Kind::kText);
  void Bind(std::string column, double& number, Kind kind = Kind::kAmount);
  void Bind(std::string column, bool& flag);
  template <typename T, typename... Rest>
  void BindSlots(std::string_view stem, PerSlot<T>& values, Rest... rest) {
    for (const IndustrySlot slot : kAllSlots) {
      Bind(SlotName(stem, slot), values[slot], rest...);
    }
  }

  // The statement texts of the class, by its filters. An unknown filter gives an empty text.
  [[nodiscard]] virtual std::string SelectText() const = 0;
  [[nodiscard]] virtual std::string BuildWhere() const { return {}; }
  [[nodiscard]] virtual std::string BuildOrderBy() const { return {}; }
  /// "DELETE FROM " or "DELETE * FROM ", as the class spells it.
  [[nodiscard]] virtual const char* DeleteVerb() const { return "DELETE FROM "; }
  [[nodiscard]] virtual std::string InsertText() const { return {}; }
  [[nodiscard]] virtual std::string UpdateText() const = 0;
  /// The columns that Retrieve reads, separated by commas, by SelectFilter.
  [[nodiscard]] virtual std::string RetrieveColumns() const = 0;

  /// How a class mends the file of an earlier release at the moment when OpenRecordset trips over
  /// what is missing.
  struct SchemaRepair {
    /// The error that OpenRecordset meets then.
    std::int32_t errorNumber;
    /// A SELECT that fails as long as the addition hasn't been made.
    const char* probe;
    bool (cAppUpdates::*addition)();
  };
  [[nodiscard]] virtual std::optional<SchemaRepair> Repair() const { return std::nullopt; }

  /// Appends each complaint to InfoMsg; true when there is none.
  virtual bool ValidateRecord();

  // Parts of statements. A column list is a text such as "EmployeeId, LastName": the same text
  // gives the names and, through the bound properties, the values.
  [[nodiscard]] std::string InsertOf(std::string_view columnList,
                                     std::string_view closing = ")") const;
  /// The same with the values of other columns than those named.
  [[nodiscard]] std::string InsertOf(std::string_view columnList, std::string_view valueList,
                                     std::string_view closing) const;
  [[nodiscard]] std::string UpdateOf(std::string_view columnList) const;
  [[nodiscard]] std::string UpdateOf(std::string_view table, std::string_view columnList) const;
  [[nodiscard]] std::string WhereKey() const;
  /// The property's value as it goes into a statement.
  [[nodiscard]] std::string ValueOf(std::string_view column) const;

  void ClearInfo();
  [[nodiscard]] DataConnection& Connection() const;

  std::string infoMsg_;
  std::string fieldInError_;

 private:
  using Target = std::variant<std::int32_t*, std::string*, double*, bool*>;

  struct Property {
    std::string column;
    Target target;
    Kind kind;
  };

  [[nodiscard]] std::string BuildSelect() const;
  bool OpenSelection();
  /// True when the file lacked what the class can add, and has it now.
  [[nodiscard]] bool CheckSchema(const RuntimeError& error) const;
  [[nodiscard]] bool ProbeFails(const char* statement) const;
  [[nodiscard]] const Property& PropertyOf(std::string_view column) const;
  [[nodiscard]] const std::vector<const Property*>& RetrievePlan();
  [[nodiscard]] static double ReadNumber(Kind kind, const Value& value);
  bool Retrieve();
  bool GetNewPrimaryKey();
  bool RunForOneRow(const char* operation, const std::string& statement, const std::string& refusal,
                    std::int32_t& filter);
  template <typename Operation>
  bool Guarded(const char* operation, const char* addition, Operation run);

  RecordNames names_;
  DataConnection* dataConnection_ = nullptr;
  Recordset recordset_;
  std::vector<Property> properties_;
  std::string planColumns_;
  std::vector<const Property*> plan_;
  std::int32_t infoCode_ = 0;
  bool eof_ = false;
  std::string sql_;
  /// The key of an insert that failed, kept for the next.
  std::optional<std::int32_t> generatedKey_;
};

}  // namespace lorvane
