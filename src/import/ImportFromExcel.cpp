#include "import/ImportFromExcel.h"

#include <memory>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "data/Recordset.h"
#include "data/modDataAccess.h"
#include "import/ImportRow.h"
#include "import/PeopleOnFile.h"
#include "import/sheet/Spreadsheet.h"

namespace lorvane {
namespace {

// The way of a spreadsheet's rows into the table.
class Import {
 public:
  Import(const Spreadsheet& sheet, int numberOfColumns, const ImportTarget& target,
         const ImportWishes& wishes)
      : sheet_(sheet), numberOfColumns_(numberOfColumns), target_(target), wishes_(wishes) {}

  void Open(const DataConnection& session) {
    connection_ = session.MakeTwin();
    connection_->OpenOrRaise();
    batch_ = connection_->MakeBatch();
    if (wishes_.skipPeopleOnFile) {
      onFile_.emplace(connection_->Connection(), target_);
    }
    table_.OpenForUpdate(connection_->Connection(),
                         "SELECT " + target_.fields + " FROM [" + target_.table + "]");
  }

  // False for a row that is passed over.
  bool TakeRow(std::size_t row) {
    const std::vector<ImportCell> cells = ReadImportRow(sheet_, row, target_, numberOfColumns_);
    if (onFile_ && !cells.empty() && onFile_->Has(cells.front().text)) {
      return false;
    }
    table_.AddNew();
    for (std::size_t place = 0; place < cells.size(); ++place) {
      if (!cells[place].unreadable) {
        table_.SetField(target_.columns[place].column, cells[place].text);
      }
      Tell(place);
    }
    for (const auto& [column, value] : target_.defaults) {
      table_.SetField(column, value);
    }
    table_.Update();
    if (onFile_ && !cells.empty()) {
      onFile_->Add(cells.front().text);
    }
    return true;
  }

  // The counter takes the last key itself: the next one that is handed out is one higher.
  void StoreNextId() {
    table_.MoveLast();
    const std::int16_t lastKey = ToInteger(NullToDouble(table_.Field(table_.Fields()[0].name)));
    table_.Close();
    Recordset counter;
    counter.OpenForUpdate(connection_->Connection(),
                          "SELECT * FROM tblTableIds WHERE TableName='" + target_.table + "'");
    counter.SetField("NextId", std::int32_t{lastKey});
    counter.Update();
  }

  void Commit() { lorvane::Commit(batch_); }

 private:
  void Tell(std::size_t place) const {
    if (wishes_.onTaken) {
      wishes_.onTaken(place);
    }
  }

  const Spreadsheet& sheet_;
  int numberOfColumns_;
  const ImportTarget& target_;
  const ImportWishes& wishes_;
  std::unique_ptr<DataConnection> connection_;
  std::unique_ptr<WriteBatch> batch_;
  std::optional<PeopleOnFile> onFile_;
  Recordset table_;
};

// The sentence of the error that the operation ended in; nothing when it was done.
template <typename Operation>
std::optional<std::string> Attempt(Operation operation) {
  try {
    operation();
    return std::nullopt;
  } catch (const RuntimeError& error) {
    return error.Description();
  }
}

void TakeRows(const DataConnection& session, std::size_t rows, const ImportProgress& progress,
              Import& import, ImportOutcome& outcome) {
  if (progress.onCount) {
    progress.onCount(rows);
  }
  const std::optional<std::string> closed = Attempt([&] { import.Open(session); });
  for (std::size_t row = 1; row <= rows; ++row) {
    if (progress.onRow) {
      progress.onRow(row);
    }
    const std::optional<std::string> refusal =
        closed ? closed : Attempt([&] { outcome.onFile += import.TakeRow(row) ? 0 : 1; });
    if (refusal) {
      outcome.refused.push_back({row, *refusal});
    }
  }
  outcome.rows = static_cast<int>(rows);
  if (closed) {
    return;
  }
  // An empty table, a key that is too large or a missing counter leave the counter as it is.
  static_cast<void>(Attempt([&] { import.StoreNextId(); }));
  if (const std::optional<std::string> undone = Attempt([&] { import.Commit(); })) {
    outcome.refused.clear();
    for (std::size_t lost = 1; lost <= rows; ++lost) {
      outcome.refused.push_back({lost, *undone});
    }
  }
}

}  // namespace

ImportOutcome ImportFromExcel(const DataConnection& session, const std::string& path,
                              int numberOfColumns, const ImportTarget& target,
                              const ImportWishes& wishes) {
  ImportOutcome outcome;
  Spreadsheet sheet;
  if (const std::optional<std::string> failure = Attempt([&] { sheet = ReadSpreadsheet(path); })) {
    outcome.unreadable = *failure;
    return outcome;
  }
  const SheetExtent extent = MeasureSheet(sheet, numberOfColumns);
  outcome.columns = extent.columns;
  if (!extent.hasData) {
    return outcome;
  }
  if (numberOfColumns > extent.columns) {
    outcome.end = ImportOutcome::End::kMissingColumns;
    return outcome;
  }
  outcome.end = ImportOutcome::End::kImported;
  Import import(sheet, numberOfColumns, target, wishes);
  TakeRows(session, CountImportRows(sheet), wishes.progress, import, outcome);
  return outcome;
}

}  // namespace lorvane
