#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/engine/Engine.h"

namespace lorvane {

/// A client-side cursor: the rows are read when it is opened, so that moving back works. One opened
/// for update can add rows and change the current one.
///
/// Positions are as a cursor's: before the first row (Bof), on a row, behind the last (Eof). An
/// operation on a closed cursor raises 3704; reading with no current row raises 3021; a field that
/// isn't there raises 3265.
class Recordset {
 public:
  void Open(EngineConnection& connection, std::string_view statement);
  /// For a statement of plain columns over one table.
  void OpenForUpdate(EngineConnection& connection, std::string_view statement);
  void Close();
  [[nodiscard]] bool IsOpen() const { return connection_ != nullptr; }

  [[nodiscard]] bool Eof() const;
  [[nodiscard]] bool Bof() const;
  [[nodiscard]] std::size_t RecordCount() const;
  void MoveFirst();
  void MoveLast();
  /// Raises 3021 when already behind the last row.
  void MoveNext();
  /// Raises 3021 when already before the first row.
  void MovePrevious();

  [[nodiscard]] const std::vector<Column>& Fields() const;
  /// The current row's value. `expectedPlace` is where the field probably stands, to spare a
  /// search.
  [[nodiscard]] const Value& Field(std::string_view name, std::size_t expectedPlace = 0) const;

  /// Begins a new row; its fields are null until set.
  void AddNew();
  /// Sets a field of the new or the current row; it reaches the table with Update.
  void SetField(std::string_view name, Value value);
  /// Writes the fields that were set. The cursor stands on the row afterwards; a new row has its
  /// key then, and nulls in the other fields that weren't set.
  void Update();

 private:
  [[nodiscard]] EngineConnection& Opened() const;
  [[nodiscard]] std::size_t PlaceOf(std::string_view name, std::size_t expectedPlace) const;
  [[nodiscard]] std::size_t CurrentRow() const;
  [[nodiscard]] std::vector<Value> NewRow(std::int64_t number) const;

  EngineConnection* connection_ = nullptr;
  UpdatableRows rows_;
  std::size_t position_ = 0;  // 0 is before the first row, 1 the first row
  bool adding_ = false;
  ColumnValues pending_;
};

}  // namespace lorvane
