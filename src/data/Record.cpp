#include "data/Record.h"

#include <algorithm>
#include <utility>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/modDataAccess.h"

namespace lorvane {
namespace {

constexpr double kPerHundred = 100;

template <typename... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

// None for an empty list: an unknown filter reads nothing.
std::vector<std::string> ColumnsOfList(std::string_view list) {
  std::vector<std::string> columns;
  if (!list.empty()) {
    columns = Split(list, ',');
  }
  for (std::string& column : columns) {
    column = Trim(column);
  }
  return columns;
}

}  // namespace

Record::Record(const RecordNames& names) : names_(names) {}

void Record::Bind(std::string column, std::int32_t& key) {
  properties_.push_back({std::move(column), &key, Kind::kText});
}

void Record::Bind(std::string column, std::string& text, Kind kind) {
  properties_.push_back({std::move(column), &text, kind});
}

void Record::Bind(std::string column, double& number, Kind kind) {
  properties_.push_back({std::move(column), &number, kind});
}

void Record::Bind(std::string column, bool& flag) {
  properties_.push_back({std::move(column), &flag, Kind::kText});
}

// Runs an operation and turns an error into InfoCode, InfoMsg and false.
template <typename Operation>
bool Record::Guarded(const char* operation, const char* addition, Operation run) {
  try {
    return run();
  } catch (const RuntimeError& error) {
    const std::string errors =
        dataConnection_ != nullptr ? dataConnection_->ErrorHandler() : std::string();
    infoMsg_ = std::string(names_.className) + "." + operation + "()" + kCrLf + errors + kCrLf +
               error.Description() + addition;
    infoCode_ = error.Number();
    return false;
  }
}

bool Record::OpenRecordset() {
  return Guarded("OpenRecordset", "\r\nDid you set the DataConnection property on this Class?",
                 [&] {
                   while (true) {
                     try {
                       return OpenSelection();
                     } catch (const RuntimeError& error) {
                       if (!CheckSchema(error)) {
                         throw;
                       }
                     }
                   }
                 });
}

bool Record::OpenSelection() {
  sql_ = BuildSelect();
  ClearInfo();
  recordset_.Close();
  eof_ = false;
  recordset_.Open(Connection().Connection(), sql_);
  if (recordset_.Eof()) {
    CloseRecordset();
    return false;
  }
  eof_ = !Retrieve();
  return !eof_;
}

bool Record::CheckSchema(const RuntimeError& error) const {
  const std::optional<SchemaRepair> repair = Repair();
  if (!repair || error.Number() != repair->errorNumber || !ProbeFails(repair->probe)) {
    return false;
  }
  cAppUpdates updates(Connection());
  if (!(updates.*repair->addition)()) {
    return false;
  }
  Connection().Connection().ClearErrors();
  return true;
}

bool Record::ProbeFails(const char* statement) const {
  try {
    const auto own = Connection().MakeTwin();
    own->OpenOrRaise();
    static_cast<void>(own->Connection().Query(statement));
    return false;
  } catch (const RuntimeError&) {
    return true;
  }
}

bool Record::MoveFirst() {
  return Guarded("MoveFirst", "", [&] {
    ClearInfo();
    recordset_.MoveFirst();
    Retrieve();
    eof_ = false;
    return true;
  });
}

bool Record::MoveLast() {
  return Guarded("MoveLast", "", [&] {
    ClearInfo();
    recordset_.MoveLast();
    Retrieve();
    eof_ = true;
    return true;
  });
}

bool Record::MoveNext() {
  return Guarded("MoveNext", "", [&] {
    ClearInfo();
    if (!recordset_.Eof()) {
      recordset_.MoveNext();
    }
    if (recordset_.Eof()) {
      CloseRecordset();
      return false;
    }
    Retrieve();
    return true;
  });
}

bool Record::MovePrevious() {
  return Guarded("MovePrevious", "", [&] {
    ClearInfo();
    if (recordset_.Bof()) {
      return false;
    }
    recordset_.MovePrevious();
    if (recordset_.Bof()) {
      // Back onto the first row, whose values the properties hold already.
      recordset_.MoveNext();
      return true;
    }
    Retrieve();
    eof_ = false;
    return true;
  });
}

void Record::CloseRecordset() {
  SelectFilter = 0;
  WhereFilter = 0;
  OrderByFilter = 0;
  InsertFilter = 0;
  UpdateFilter = 0;
  sql_.clear();
  eof_ = true;
  recordset_.Close();
}

bool Record::AddNew() {
  if (!ValidateRecord() || !GetNewPrimaryKey()) {
    return false;
  }
  return RunForOneRow("AddNew", InsertText(),
                      std::string("Could not insert into this table: ") + names_.insertTable,
                      InsertFilter);
}

bool Record::Update() {
  if (!ValidateRecord()) {
    return false;
  }
  return RunForOneRow("Update", UpdateText(),
                      std::string("Could Not Update This Table: ") + names_.updateTable,
                      UpdateFilter);
}

bool Record::Delete() {
  return Guarded("Delete", "", [&] {
    ClearInfo();
    Connection().Connection().Execute(DeleteVerb() + std::string(names_.table) + BuildWhere());
    return true;
  });
}

bool Record::RunForOneRow(const char* operation, const std::string& statement,
                          const std::string& refusal, std::int32_t& filter) {
  return Guarded(operation, "", [&] {
    ClearInfo();
    if (Connection().Connection().Execute(statement) != 1) {
      infoMsg_ = std::string(names_.className) + "." + operation + "()" + kCrLf + refusal;
      return false;
    }
    filter = 0;
    generatedKey_.reset();
    return true;
  });
}

bool Record::GetNewPrimaryKey() {
  return Guarded("GetNewPrimaryKey", "", [&] {
    ClearInfo();
    std::int32_t& key = *std::get<std::int32_t*>(PropertyOf(names_.keyColumn).target);
    if (generatedKey_) {
      // Another record may have been read since the insert that failed.
      key = *generatedKey_;
      return true;
    }
    key = Connection().TableIDGet(names_.table, names_.keyColumn);
    if (key == -1) {
      infoMsg_ = std::string(names_.className) + ".GetNewPrimaryKey()" + kCrLf +
                 "Could not generate a unique ID for this table: " + names_.keyTable + " " + kCrLf +
                 Connection().ErrorMsg();
      return false;
    }
    generatedKey_ = key;
    return true;
  });
}

bool Record::ValidateRecord() {
  ClearInfo();
  return true;
}

// The properties of the columns to read, found anew only when the columns change.
const std::vector<const Record::Property*>& Record::RetrievePlan() {
  std::string columns = RetrieveColumns();
  if (columns != planColumns_) {
    plan_.clear();
    for (const std::string& column : ColumnsOfList(columns)) {
      plan_.push_back(&PropertyOf(column));
    }
    planColumns_ = std::move(columns);
  }
  return plan_;
}

double Record::ReadNumber(Kind kind, const Value& value) {
  switch (kind) {
    case Kind::kNumber:
      return NullToDouble(value);
    case Kind::kRate:
      // Through currency as every amount, so a rate keeps four decimals.
      return Currency::FromDouble(Round(NullToDouble(value) * kPerHundred, 5)).ToDouble();
    default:
      return NullToCurrency(value).ToDouble();
  }
}

bool Record::Retrieve() {
  return Guarded(
      "Retrieve", "\r\nmost likely a column name is misspelled in the Retrieve() method", [&] {
        std::size_t place = 0;
        for (const Property* property : RetrievePlan()) {
          const Value& value = recordset_.Field(property->column, place);
          ++place;
          std::visit(Overloaded{
                         [&](std::int32_t* key) { *key = NullToLong(value); },
                         [&](std::string* text) { *text = NullToText(value); },
                         [&](double* number) { *number = ReadNumber(property->kind, value); },
                         [&](bool* flag) { *flag = NullToBool(value); },
                     },
                     property->target);
        }
        return true;
      });
}

std::string Record::BuildSelect() const { return SelectText() + BuildWhere() + BuildOrderBy(); }

std::string Record::InsertOf(std::string_view columnList, std::string_view closing) const {
  return InsertOf(columnList, columnList, closing);
}

std::string Record::InsertOf(std::string_view columnList, std::string_view valueList,
                             std::string_view closing) const {
  std::vector<std::string> values;
  for (const std::string& column : ColumnsOfList(valueList)) {
    values.push_back(ValueOf(column));
  }
  return std::string("INSERT INTO ") + names_.table + " (" + std::string(columnList) +
         ") VALUES (" + Join(values, ", ") + std::string(closing);
}

std::string Record::UpdateOf(std::string_view columnList) const {
  return UpdateOf(names_.table, columnList);
}

std::string Record::UpdateOf(std::string_view table, std::string_view columnList) const {
  std::vector<std::string> assignments;
  for (const std::string& column : ColumnsOfList(columnList)) {
    assignments.push_back(column + " = " + ValueOf(column));
  }
  return "UPDATE " + std::string(table) + " SET " + Join(assignments, ", ");
}

std::string Record::WhereKey() const {
  return std::string(" WHERE ") + names_.keyColumn + " = " + ValueOf(names_.keyColumn);
}

std::string Record::ValueOf(std::string_view column) const {
  const Property& property = PropertyOf(column);
  return std::visit(Overloaded{
                        [](const std::int32_t* key) { return std::to_string(*key); },
                        [&](const std::string* text) {
                          return property.kind == Kind::kDate ? QuoteDate(*text) : QuoteText(*text);
                        },
                        [&](const double* number) {
                          return QuoteNumber(property.kind == Kind::kRate
                                                 ? Round(*number / kPerHundred, 5)
                                                 : *number);
                        },
                        [](const bool* flag) { return std::to_string(BoolToSql(*flag)); },
                    },
                    property.target);
}

const Record::Property& Record::PropertyOf(std::string_view column) const {
  const auto named = [&](auto matches) {
    return std::find_if(properties_.begin(), properties_.end(),
                        [&](const Property& property) { return matches(property.column); });
  };
  auto found = named([&](const std::string& name) { return name == column; });
  if (found == properties_.end()) {
    found = named([&](const std::string& name) { return EqualsNoCase(name, column); });
  }
  if (found == properties_.end()) {
    throw RuntimeError(error_number::kItemNotFound);
  }
  return *found;
}

void Record::ClearInfo() {
  fieldInError_.clear();
  infoMsg_.clear();
  infoCode_ = 0;
}

DataConnection& Record::Connection() const {
  if (dataConnection_ == nullptr) {
    throw RuntimeError(error_number::kObjectNotSet);
  }
  return *dataConnection_;
}

}  // namespace lorvane
