#include "data/Recordset.h"

#include <algorithm>
#include <utility>

#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {

void Recordset::Open(EngineConnection& connection, std::string_view statement) {
  Close();
  rows_.result = connection.Query(statement);
  connection_ = &connection;
  position_ = 1;
}

void Recordset::OpenForUpdate(EngineConnection& connection, std::string_view statement) {
  Close();
  rows_ = connection.QueryForUpdate(statement);
  connection_ = &connection;
  position_ = 1;
}

void Recordset::Close() {
  connection_ = nullptr;
  rows_ = {};
  pending_.clear();
  adding_ = false;
}

bool Recordset::Eof() const { return position_ > RecordCount(); }

bool Recordset::Bof() const { return RecordCount() == 0 || position_ == 0; }

std::size_t Recordset::RecordCount() const {
  static_cast<void>(Opened());
  return rows_.result.rows.size();
}

void Recordset::MoveFirst() {
  if (RecordCount() == 0) {
    throw RuntimeError(error_number::kNoCurrentRow);
  }
  position_ = 1;
}

void Recordset::MoveLast() {
  if (RecordCount() == 0) {
    throw RuntimeError(error_number::kNoCurrentRow);
  }
  position_ = RecordCount();
}

void Recordset::MoveNext() {
  if (Eof()) {
    throw RuntimeError(error_number::kNoCurrentRow);
  }
  ++position_;
}

void Recordset::MovePrevious() {
  if (Bof()) {
    throw RuntimeError(error_number::kNoCurrentRow);
  }
  --position_;
}

const std::vector<Column>& Recordset::Fields() const {
  static_cast<void>(Opened());
  return rows_.result.columns;
}

const Value& Recordset::Field(std::string_view name, std::size_t expectedPlace) const {
  const std::size_t row = CurrentRow();
  return rows_.result.rows[row][PlaceOf(name, expectedPlace)];
}

void Recordset::AddNew() {
  static_cast<void>(Opened());
  pending_.clear();
  adding_ = true;
}

void Recordset::SetField(std::string_view name, Value value) {
  if (!adding_) {
    static_cast<void>(CurrentRow());
  }
  pending_.emplace_back(Fields()[PlaceOf(name, 0)].name, std::move(value));
}

void Recordset::Update() {
  EngineConnection& connection = Opened();
  const ColumnValues values = std::exchange(pending_, {});
  if (std::exchange(adding_, false)) {
    const std::int64_t number = connection.InsertRow(rows_.table, values);
    rows_.rowNumbers.push_back(number);
    rows_.result.rows.push_back(NewRow(number));
    position_ = rows_.result.rows.size();
  } else if (!values.empty()) {
    connection.UpdateRow(rows_.table, rows_.rowNumbers[CurrentRow()], values);
  }
  for (const auto& [name, value] : values) {
    rows_.result.rows[position_ - 1][PlaceOf(name, 0)] = value;
  }
}

// Nulls, but for the key that the engine numbered; one that was given comes with the other values.
std::vector<Value> Recordset::NewRow(std::int64_t number) const {
  std::vector<Value> row(rows_.result.columns.size());
  for (std::size_t place = 0; place < row.size(); ++place) {
    if (rows_.result.columns[place].isKey) {
      row[place] = static_cast<std::int32_t>(number);
    }
  }
  return row;
}

EngineConnection& Recordset::Opened() const {
  if (connection_ == nullptr) {
    throw RuntimeError(error_number::kObjectClosed);
  }
  return *connection_;
}

std::size_t Recordset::PlaceOf(std::string_view name, std::size_t expectedPlace) const {
  const std::vector<Column>& fields = rows_.result.columns;
  if (expectedPlace < fields.size() && fields[expectedPlace].name == name) {
    return expectedPlace;
  }
  const auto named = [&](auto matches) {
    return std::find_if(fields.begin(), fields.end(),
                        [&](const Column& column) { return matches(column.name); });
  };
  auto found = named([&](const std::string& field) { return field == name; });
  if (found == fields.end()) {
    found = named([&](const std::string& field) { return EqualsNoCase(field, name); });
  }
  if (found == fields.end()) {
    throw RuntimeError(error_number::kItemNotFound);
  }
  return static_cast<std::size_t>(found - fields.begin());
}

std::size_t Recordset::CurrentRow() const {
  if (Eof() || Bof()) {
    throw RuntimeError(error_number::kNoCurrentRow);
  }
  return position_ - 1;
}

}  // namespace lorvane
