#include "import/ImportSubContractors.h"

#include <array>
#include <cstdint>
#include <memory>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "data/Recordset.h"
#include "data/modDataAccess.h"

namespace lorvane {
namespace {

constexpr std::array kColumns{"BusNum",   "Name",         "Address",       "City",       "Province",
                              "PostCode", "ContractType", "PercentLabour", "Description"};

std::unique_ptr<DataConnection> OpenToRead(const DataConnection& session, const std::string& path,
                                           const std::string& password) {
  std::unique_ptr<DataConnection> source = session.MakeAnother();
  source->SetProviderConst(session.ProviderConst());
  source->DataSource = path;
  source->Password = password;
  source->ReadOnly = true;
  source->OpenOrRaise();
  return source;
}

// A failure of the second attempt tells more: it names a protected file as such.
std::unique_ptr<DataConnection> OpenSource(const DataConnection& session, const std::string& path) {
  try {
    return OpenToRead(session, path, session.Password);
  } catch (const RuntimeError&) {
    return OpenToRead(session, path, {});
  }
}

// The rows that are added from here on, which go again unless all of them arrive. The engine gives
// them higher keys than any before.
class AddedRows {
 public:
  explicit AddedRows(EngineConnection& connection) : connection_(connection) {
    const ResultTable last =
        connection.Query("SELECT Max(SubContractId) AS LastKey FROM tblSubContract");
    before_ = NullToDouble(last.rows.front().front());
  }
  AddedRows(const AddedRows&) = delete;
  AddedRows& operator=(const AddedRows&) = delete;
  ~AddedRows() {
    if (kept_) {
      return;
    }
    try {
      connection_.Execute("DELETE FROM tblSubContract WHERE SubContractId > " +
                          QuoteNumber(before_));
    } catch (const RuntimeError&) {
      // The disk failed; the batch is undone with all its rows.
      kept_ = false;
    }
  }

  void Keep() { kept_ = true; }

 private:
  EngineConnection& connection_;
  double before_ = 0;
  bool kept_ = false;
};

void CopyRow(const Recordset& source, Recordset& target) {
  target.AddNew();
  for (const char* column : kColumns) {
    target.SetField(column, source.Field(column));
  }
  target.Update();
}

}  // namespace

std::size_t ImportSubContractors(const DataConnection& session, const std::string& sourcePath,
                                 const ImportProgress& progress) {
  const std::unique_ptr<DataConnection> other = OpenSource(session, sourcePath);
  Recordset source;
  source.Open(other->Connection(),
              "SELECT BusNum, ContractType, PercentLabour, Description, Name, Address, City, "
              "Province, PostCode FROM tblSubContract");
  const std::size_t rows = source.RecordCount();
  if (progress.onCount) {
    progress.onCount(rows);
  }
  const std::unique_ptr<WriteBatch> batch = session.MakeBatch();
  Recordset target;
  target.OpenForUpdate(session.Connection(),
                       "SELECT BusNum, Name, Address, City, Province, PostCode, ContractType, "
                       "PercentLabour, Description FROM tblSubContract");
  AddedRows added(session.Connection());
  std::int16_t counter = 1;
  for (; !source.Eof(); source.MoveNext()) {
    if (progress.onRow) {
      progress.onRow(static_cast<std::size_t>(counter));
    }
    CopyRow(source, target);
    counter = NextInteger(counter);
  }
  Commit(batch);
  added.Keep();
  return rows;
}

}  // namespace lorvane
