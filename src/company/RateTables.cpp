#include "company/RateTables.h"

#include <algorithm>
#include <cstdint>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "company/RatesFile.h"
#include "data/Recordset.h"
#include "data/Schema.h"
#include "data/modDataAccess.h"
#include "screen/Session.h"

namespace lorvane {
namespace {

constexpr std::string_view kTable = "tbl";

}  // namespace

RateTables::RateTables(const Session& session)
    : session_(session), dataConnection_(session.gDataConn->MakeAnother()) {
  dataConnection_->SetProviderConst(DataConnection::kJet);
}

EngineConnection& RateTables::Connection() {
  return dataConnection_->IsOpen() ? dataConnection_->Connection()
                                   : Open(RatesToRead(session_), true);
}

EngineConnection& RateTables::Open(const std::string& file, bool readOnly) {
  dataConnection_->DataSource = file;
  dataConnection_->ReadOnly = readOnly;
  dataConnection_->OpenOrRaise();
  return dataConnection_->Connection();
}

std::vector<int> RateTables::Years() {
  std::vector<int> years;
  for (const std::string& table : Connection().TableNames()) {
    const std::string_view year =
        std::string_view(table).substr(std::min(table.size(), kTable.size()));
    if (EqualsNoCase(Left(table, kTable.size()), kTable) && IsNumeric(year)) {
      years.push_back(ToLong(year));
    }
  }
  std::sort(years.begin(), years.end());
  return years;
}

bool RateTables::Has(int year) { return Connection().HasTable(RateTable(year).name); }

std::vector<PublishedRate> RateTables::Read(const std::string& year) {
  Recordset rows;
  rows.Open(Connection(), "SELECT SIC, Description, Rate FROM tbl" + year);
  std::vector<PublishedRate> rates;
  rates.reserve(rows.RecordCount());
  for (; !rows.Eof(); rows.MoveNext()) {
    rates.push_back({NullToText(rows.Field("SIC", 0)), NullToText(rows.Field("Description", 1)),
                     NullToDouble(rows.Field("Rate", 2))});
  }
  return rates;
}

void RateTables::Replace(int year, const std::vector<PublishedRate>& rates) {
  EngineConnection& connection = Open(RatesToChange(session_), false);
  const TableDefinition table = RateTable(year);
  const auto batch = dataConnection_->MakeBatch();
  if (Has(year)) {
    connection.Execute("DELETE FROM " + table.name);
  } else {
    connection.CreateTable(table.name, table.columns);
  }
  std::int32_t number = 0;
  for (const PublishedRate& rate : rates) {
    connection.InsertRow(table.name, {{"ID", ++number},
                                      {"SIC", rate.code},
                                      {"Description", rate.description},
                                      {"Rate", rate.rate}});
  }
  Commit(batch);
}

}  // namespace lorvane
