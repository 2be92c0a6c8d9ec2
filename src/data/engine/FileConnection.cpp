#include "data/engine/FileConnection.h"

#include <fmt/format.h>
#include <sqlcipher/sqlite3.h>

#include <algorithm>
#include <utility>

#include "basic/Text.h"
#include "data/engine/CompactCopy.h"
#include "data/engine/Lexer.h"
#include "data/engine/Parser.h"
#include "data/engine/RawFile.h"
#include "data/engine/Renderer.h"
#include "data/engine/RowReader.h"
#include "data/engine/SchemaChanges.h"

namespace lorvane::sql {
namespace {

std::vector<Value> ReadRow(const StatementRun& run, const std::vector<Column>& columns,
                           int firstPlace) {
  std::vector<Value> row;
  row.reserve(columns.size());
  int place = firstPlace;
  for (const Column& column : columns) {
    row.push_back(ReadValue(run.Row(), place, column.type));
    ++place;
  }
  return row;
}

bool ListsAllColumns(const SelectStatement& select) {
  return std::any_of(select.items.begin(), select.items.end(),
                     [](const SelectItem& item) { return item.expression == kNoNode; });
}

}  // namespace

FileConnection::FileConnection(std::unique_ptr<Database> database)
    : database_(std::move(database)), catalog_(*database_), transactions_(*database_) {}

FileConnection::~FileConnection() { transactions_.Finish(); }

template <typename Operation>
auto FileConnection::Recorded(Operation operation) {
  try {
    return operation();
  } catch (const RuntimeError& error) {
    const RuntimeError explained = transactions_.Explain(error);
    errors_ = {{explained.Number(), explained.Description()}};
    throw explained;
  }
}

template <typename Operation>
auto FileConnection::WithCatalog(Operation operation) {
  try {
    return operation();
  } catch (const RuntimeError&) {
    if (!catalog_.Refresh()) {
      throw;
    }
  }
  return operation();
}

const Table& FileConnection::TableNamed(std::string_view name) {
  const Table* table = catalog_.Find(name);
  if (table == nullptr) {
    throw RuntimeError(error_number::kEngineUnknownTable,
                       fmt::format("There is no table {}.", Left(name, 60)));
  }
  return *table;
}

std::int64_t FileConnection::Execute(std::string_view statement) {
  return Recorded([&]() -> std::int64_t {
    Statement parsed = Parse(statement);
    if (std::holds_alternative<SelectStatement>(parsed.body)) {
      FailStatement("a SELECT changes nothing; its rows are to be read.");
    }
    if (const auto* alter = std::get_if<AlterStatement>(&parsed.body)) {
      Alter(*alter);
      return 0;
    }
    return Write(WithCatalog([&] { return RenderWrite(parsed); }));
  });
}

Rendered FileConnection::RenderWrite(Statement& statement) {
  if (const auto* insert = std::get_if<InsertStatement>(&statement.body)) {
    return RenderInsert(statement, TableNamed(insert->table));
  }
  if (const auto* update = std::get_if<UpdateStatement>(&statement.body)) {
    return RenderUpdate(statement, TableNamed(update->table));
  }
  return RenderDelete(statement, TableNamed(std::get<DeleteStatement>(statement.body).table));
}

std::int64_t FileConnection::Write(const Rendered& rendered) {
  transactions_.PrepareWrite();
  Savepoint savepoint(*database_, rendered.mayFailMidway);
  {
    StatementRun run(*database_, rendered);
    run.Step();
  }
  const int changes = sqlite3_changes(database_->Handle());
  savepoint.Keep();
  return changes;
}

SelectStatement& FileConnection::SelectIn(Statement& statement) {
  auto* select = std::get_if<SelectStatement>(&statement.body);
  if (select == nullptr) {
    FailStatement("only a SELECT gives rows.");
  }
  // All columns means those of now. In a batch nobody else can change them.
  if (!transactions_.InBatch() && ListsAllColumns(*select)) {
    catalog_.Refresh();
  }
  return *select;
}

ResultTable FileConnection::Query(std::string_view statement) {
  return Recorded([&] {
    Statement parsed = Parse(statement);
    const SelectStatement& select = SelectIn(parsed);
    Rendered rendered = WithCatalog([&] {
      return RenderSelect(parsed, select.table.empty() ? nullptr : &TableNamed(select.table));
    });
    ResultTable result;
    StatementRun run(*database_, rendered);
    while (run.Step()) {
      result.rows.push_back(ReadRow(run, rendered.columns, 0));
    }
    result.columns = std::move(rendered.columns);
    return result;
  });
}

UpdatableRows FileConnection::QueryForUpdate(std::string_view statement) {
  return Recorded([&] {
    Statement parsed = Parse(statement);
    const SelectStatement& select = SelectIn(parsed);
    UpdatableRows rows;
    Rendered rendered = WithCatalog([&] {
      const Table& table = TableNamed(select.table);
      rows.table = table.name;
      return RenderSelectForUpdate(parsed, table);
    });
    StatementRun run(*database_, rendered);
    while (run.Step()) {
      rows.rowNumbers.push_back(sqlite3_column_int64(run.Row(), 0));
      rows.result.rows.push_back(ReadRow(run, rendered.columns, 1));
    }
    rows.result.columns = std::move(rendered.columns);
    return rows;
  });
}

void FileConnection::UpdateRow(const std::string& table, std::int64_t rowNumber,
                               const ColumnValues& values) {
  Recorded([&] {
    if (values.empty()) {
      return;
    }
    const std::int64_t changed =
        Write(WithCatalog([&] { return RenderRowUpdate(TableNamed(table), rowNumber, values); }));
    if (changed == 0) {
      throw RuntimeError(error_number::kEngineFailure,
                         fmt::format("The row of {} to be changed is no longer there.", table));
    }
  });
}

std::int64_t FileConnection::InsertRow(const std::string& table, const ColumnValues& values) {
  return Recorded([&] {
    Write(WithCatalog([&] { return RenderRowInsert(TableNamed(table), values); }));
    return sqlite3_last_insert_rowid(database_->Handle());
  });
}

std::vector<std::string> FileConnection::TableNames() {
  return Recorded([&] {
    catalog_.Refresh();
    return catalog_.TableNames();
  });
}

bool FileConnection::HasTable(const std::string& table) {
  return Recorded([&] {
    catalog_.Refresh();
    return catalog_.Find(table) != nullptr;
  });
}

std::vector<Column> FileConnection::ColumnsOf(const std::string& table) {
  return Recorded([&] {
    catalog_.Refresh();
    return TableNamed(table).columns;
  });
}

void FileConnection::CreateTable(const std::string& table, const std::vector<Column>& columns) {
  Recorded([&] {
    catalog_.Refresh();
    if (catalog_.Find(table) != nullptr) {
      FailStatement("there is a table " + table + " already.");
    }
    SchemaChanges(*database_, transactions_).CreateTable(table, columns);
    catalog_.Refresh();
  });
}

void FileConnection::AddColumn(const std::string& table, const Column& column) {
  Recorded([&] {
    catalog_.Refresh();
    SchemaChanges(*database_, transactions_).AddColumn(TableNamed(table), column);
    catalog_.Refresh();
  });
}

void FileConnection::Alter(const AlterStatement& alter) {
  catalog_.Refresh();
  const Table& table = TableNamed(alter.table);
  SchemaChanges changes(*database_, transactions_);
  if (alter.adds) {
    changes.AddColumn(table, alter.column);
  } else {
    changes.AlterColumn(table, alter.column);
  }
  catalog_.Refresh();
}

void FileConnection::BeginBatch() {
  Recorded([&] {
    transactions_.Begin();
    catalog_.Refresh();
  });
}

void FileConnection::EndBatch() {
  Recorded([&] { transactions_.End(); });
}

void FileConnection::RefuseInBatch() const {
  if (transactions_.InBatch()) {
    throw RuntimeError(error_number::kEngineFailure,
                       fmt::format("The file {} is being written.", database_->Path()));
  }
}

void FileConnection::Checkpoint() {
  Recorded([&] {
    RefuseInBatch();
    if (database_->ReadNumber("PRAGMA wal_checkpoint(TRUNCATE)") != 0) {
      database_->Fail(SQLITE_BUSY);
    }
  });
}

void FileConnection::ReadDataFile(const std::function<void(std::string_view block)>& take) {
  Checkpoint();
  Recorded([&] {
    const WriteLock lock(*database_);
    // What somebody else wrote since the checkpoint isn't in the file yet.
    if (RawFile::LogOf(*database_).Size() != 0) {
      database_->Fail(SQLITE_BUSY);
    }
    RawFile::DataOf(*database_).Read(take);
  });
}

void FileConnection::WriteCompactCopy(const std::string& path) {
  Recorded([&] {
    RefuseInBatch();
    sql::WriteCompactCopy(*database_, path);
  });
}

std::vector<std::string> FileConnection::CheckIntegrity() {
  std::vector<std::string> faults;
  try {
    StatementRun run(*database_, "PRAGMA integrity_check");
    while (run.Step()) {
      std::string fault(static_cast<const char*>(sqlite3_column_blob(run.Row(), 0)),
                        static_cast<std::size_t>(sqlite3_column_bytes(run.Row(), 0)));
      if (fault != "ok") {
        faults.push_back(std::move(fault));
      }
    }
  } catch (const RuntimeError& error) {
    faults.push_back(error.Description());
  }
  return faults;
}

}  // namespace lorvane::sql
