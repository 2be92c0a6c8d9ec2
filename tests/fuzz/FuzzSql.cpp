// Whatever text comes in, it is either refused with an error or becomes a statement that the data
// file's own language takes.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "basic/RuntimeError.h"
#include "data/engine/Catalog.h"
#include "data/engine/Database.h"
#include "data/engine/Parser.h"
#include "data/engine/Renderer.h"
#include "data/engine/SchemaChanges.h"
#include "data/engine/SqlFunctions.h"
#include "data/engine/Transactions.h"

namespace lorvane::sql {
namespace {

constexpr std::size_t kLongestStatement = 20000;

class Harness {
 public:
  Harness() : database_(":memory:"), catalog_(database_), transactions_(database_) {
    RegisterFunctions(database_);
    SchemaChanges(database_, transactions_)
        .CreateTable("t", {{"Id", ColumnType::kLong, 0, true},
                           {"Name", ColumnType::kText, 10},
                           {"Date", ColumnType::kDate},
                           {"Amount", ColumnType::kCurrency},
                           {"Rate", ColumnType::kDouble},
                           {"IndA", ColumnType::kYesNo},
                           {"dtCreate", ColumnType::kDate}});
    database_.Run(
        "INSERT INTO t VALUES (1, 'Côté', '2004-01-05', 0.1, 2.5, -1, '2004-01-05T10:00:00'), "
        "(2, '12', NULL, NULL, NULL, 0, NULL), (3, '1/5/2004', '1899-12-30', -7, 1e300, -1, NULL)");
  }

  void Try(std::string_view text) {
    try {
      Statement statement = Parse(text);
      transactions_.Begin();
      try {
        const Savepoint undone(database_);
        Run(statement);
      } catch (const RuntimeError& error) {
        CheckRefusal(error, text);
      }
      transactions_.End();
      catalog_.Refresh();
    } catch (const RuntimeError& error) {
      CheckRefusal(error, text);
    }
  }

 private:
  static constexpr int kMostRows = 50;

  void Run(Statement& statement) {
    if (const auto* alter = std::get_if<AlterStatement>(&statement.body)) {
      SchemaChanges changes(database_, transactions_);
      const Table& table = Named(alter->table);
      alter->adds ? changes.AddColumn(table, alter->column)
                  : changes.AlterColumn(table, alter->column);
      return;
    }
    const Rendered rendered = Render(statement);
    StatementRun run(database_, rendered);
    for (int row = 0; row < kMostRows && run.Step(); ++row) {
    }
  }

  Rendered Render(Statement& statement) {
    if (const auto* select = std::get_if<SelectStatement>(&statement.body)) {
      return RenderSelect(statement, select->table.empty() ? nullptr : &Named(select->table));
    }
    if (const auto* insert = std::get_if<InsertStatement>(&statement.body)) {
      return RenderInsert(statement, Named(insert->table));
    }
    if (const auto* update = std::get_if<UpdateStatement>(&statement.body)) {
      return RenderUpdate(statement, Named(update->table));
    }
    return RenderDelete(statement, Named(std::get<DeleteStatement>(statement.body).table));
  }

  const Table& Named(std::string_view name) {
    const Table* table = catalog_.Find(name);
    if (table == nullptr) {
      throw RuntimeError(error_number::kEngineUnknownTable, "There is no such table.");
    }
    return *table;
  }

  // A statement that we take and the library refuses is a fault, but for its limits.
  static void CheckRefusal(const RuntimeError& error, std::string_view text) {
    const std::string& description = error.Description();
    const auto says = [&](const char* words) {
      return description.find(words) != std::string::npos;
    };
    const bool limit = says("stack overflow") || says("too many") || says("too large");
    if (error.Number() == error_number::kEngineFailure ||
        (description.starts_with("The statement could not be run") && !limit)) {
      static_cast<void>(std::fprintf(stderr, "%s\n%.*s\n", description.c_str(),
                                     static_cast<int>(text.size()), text.data()));
      std::abort();
    }
  }

  Database database_;
  Catalog catalog_;
  Transactions transactions_;
};

}  // namespace
}  // namespace lorvane::sql

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static lorvane::sql::Harness harness;
  if (size <= lorvane::sql::kLongestStatement) {
    harness.Try({reinterpret_cast<const char*>(data), size});
  }
  return 0;
}
