#include "yearend/cYearEnd.h"

#include <memory>
#include <optional>
#include <utility>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "company/RatesFile.h"
#include "company/cIndustry.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "yearend/PublishedRates.h"
#include "yearend/modYearEnd.h"

namespace lorvane {
namespace {

constexpr const char* kSection = "Assessment";
constexpr const char* kConfigName = "LorvaneConfig.ini";

void Require(const Record& record, bool done) {
  if (done) {
    return;
  }
  if (record.InfoCode() == 0 && record.InfoMsg().empty()) {
    throw RuntimeError(error_number::kNoCurrentRow);
  }
  throw RuntimeError(record.InfoCode(), record.InfoMsg());
}

}  // namespace

std::string cYearEnd::ArchiveFile(const std::string& name) const {
  return Destination + Year + "/" + name;
}

std::string cYearEnd::NextYear() const { return ShortestText(ToDouble(Year) + 1); }

bool cYearEnd::PerformYE() {
  if (!CreateYEFolder() || !CopyYEFiles()) {
    return false;
  }
  // A machine that fails in between leaves the year open or closed, nothing between them.
  auto batch = context_.session.gDataConn->MakeBatch();
  if (!DeleteHistory()) {
    return false;
  }
  ResetWages();
  Commit(batch);
  batch.reset();
  StoreLastEntry();
  context_.services.MsgBox(
      "Year End Complete. \r\n\r\nDon't forget to verify if your industry rate(s)\r\n"
      "have changed for the new year. You can change\r\n"
      "your industry rates in the company settings screen.",
      box::kInformation, "Year End");
  return true;
}

// The date texts read as divisions and the two comparisons as one chain, so that every row with a
// date goes.
bool cYearEnd::DeleteHistory() {
  EngineConnection& connection = context_.session.gDataConn->Connection();
  for (const char* table : {"tblSubHistory", "tblEmpHistory"}) {
    connection.Execute(std::string("DELETE * FROM ") + table + " WHERE dtCreate >= 01/01/" + Year +
                       "<= 12/31/" + Year);
  }
  return true;
}

bool cYearEnd::ResetMaxContrib(double amount) {
  return ResetAllMaxContrib(*context_.session.gDataConn, amount);
}

bool cYearEnd::ResetAccWages() {
  ResetWages();
  StoreLastEntry();
  return true;
}

void cYearEnd::ResetWages() { SetForAllEmployees(*context_.session.gDataConn, "AccWages", 0); }

void cYearEnd::StoreLastEntry() {
  context_.session.Ini().KeySave("01/01/" + NextYear(), kSection, "LastEntry");
}

bool cYearEnd::CreateYEFolder() {
  try {
    context_.session.files.MakeFolder(Destination + Year);
    return true;
  } catch (const RuntimeError& error) {
    if (error.Number() == error_number::kFileAlreadyExists) {
      context_.services.MsgBox(
          "A folder with the current year end date already exists.\r\n\r\n"
          "Please confirm that the year end procedure has not already been \r\n"
          "performed.  If the year end has not been performed you will\r\n"
          "have to delete this folder before you can continue.",
          box::kExclamation, "Year End Folder");
    } else {
      ShowError(context_, error, box::kExclamation);
    }
    return false;
  }
}

bool cYearEnd::CopyYEFiles() {
  Session& session = context_.session;
  try {
    CopyDataFile(ArchiveFile(Year + ".mdb"));
    const std::string config = ArchiveFile(kConfigName);
    session.files.Copy(FindWithoutCase(session.gConfigFile), config);
    LabelYEIni(config);
    // An archive that isn't marked would open as a company to post to.
    if (cINI(session.files, config).KeyGet("DataBase", "YE", "") != "1") {
      throw RuntimeError(error_number::kPathFileAccess,
                         "'" + config + "' could not be marked as that of a closed year.");
    }
    return true;
  } catch (const RuntimeError& error) {
    switch (error.Number()) {
      case error_number::kEngineDiskFull:
        context_.services.MsgBox(
            "There was a problem copying files to this location.\r\n"
            "Please make sure there is enough drive space and try again.",
            box::kExclamation, "Could Not Copy File(s)");
        break;
      case error_number::kDiskFull:
        context_.services.MsgBox("Your disk is full.  Please free up some space and try again.",
                                 box::kExclamation, "Disk is Full");
        break;
      default:
        context_.services.MsgBox(
            "You encountered the following error: " + std::to_string(error.Number()) + kCrLf +
                "Description: " + error.Description(),
            box::kExclamation, "Error");
    }
    return false;
  }
}

void cYearEnd::CopyDataFile(const std::string& destination) {
  DataConnection& connection = *context_.session.gDataConn;
  Files& files = context_.session.files;
  if (connection.IsOpen()) {
    files.WriteNew(destination,
                   [&](const TakeBytes& take) { connection.Connection().ReadDataFile(take); });
  } else {
    files.Copy(connection.DataSource, destination);
  }
}

void cYearEnd::LabelYEIni(const std::string& path) {
  cINI(context_.session.files, path).KeySave("1", "Database", "YE");
}

void cYearEnd::ResetCurrentYear() {
  cINI ini = context_.session.Ini();
  const std::int16_t year = ToInteger(ini.KeyGet(kSection, "CurrentYear", ""));
  ini.KeySave(std::to_string(NextInteger(year)), kSection, "CurrentYear");
}

Compaction cYearEnd::ShowCompactDatabase_ADO() {
  Session& session = context_.session;
  std::unique_ptr<DataConnection> fresh = session.gDataConn->MakeTwin();
  session.gDataConn->DataClose();
  Compaction compaction = CompactDataFile(*fresh, session.files);
  session.gDataConn = std::move(fresh);
  session.gDataConn->DataOpen();
  return compaction;
}

bool cYearEnd::UpdateRates() {
  try {
    const std::string missing = TakeRates();
    context_.services.MsgBox(
        missing.empty() ? "We have updated your existing industry rate(s)\r\n"
                          "according to the information supplied to us by the Lorvane.\r\n"
                          "You should, however, verify that the rate(s) correspond\r\n"
                          "to the rate(s) appearing on your remittance form(s)."
                        : "Rates for the following SIC codes were not found: \r\n\r\n" + missing +
                              "\r\n\r\nWe would recommend that you contact the Lorvane for the "
                              "latest rate(s).",
        box::kInformation, "Rates");
    return true;
  } catch (const RuntimeError& error) {
    if (error.Number() == error_number::kEngineUnknownTable) {
      context_.services.MsgBox(
          "Could not locate rates for the upcoming year.\r\n\r\n"
          "Please contact us for an update or call the \r\nLorvane for your revised rates.",
          box::kExclamation, "Rates");
    } else {
      ShowError(context_, error, box::kExclamation);
    }
    return false;
  }
}

std::string cYearEnd::TakeRates() {
  Session& session = context_.session;
  const std::unique_ptr<DataConnection> resource = session.gDataConn->MakeAnother();
  resource->SetProviderConst(session.gDataConn->ProviderConst());
  resource->DataSource = RatesToRead(session);
  resource->ReadOnly = true;
  const PublishedRates published(*resource, NextYear());

  cIndustry industry;
  industry.SetDataConnection(session.gDataConn.get());
  industry.SelectFilter = cIndustry::kSelectRates;
  Require(industry, industry.OpenRecordset());
  std::string missing;
  for (const IndustrySlot slot : kAllSlots) {
    const std::string& sic = industry.Sic[slot];
    if (sic.empty()) {
      continue;
    }
    if (const std::optional<double> rate = published.RateOf(sic)) {
      industry.Rate[slot] = *rate;
    } else {
      // The last slot's code ends the list.
      missing += sic + (slot == IndustrySlot::kF ? "" : kCrLf);
    }
  }
  industry.UpdateFilter = cIndustry::kUpdateRates;
  Require(industry, industry.Update());
  industry.CloseRecordset();
  return missing;
}

}  // namespace lorvane
