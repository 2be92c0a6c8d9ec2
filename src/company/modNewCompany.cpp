#include "company/modNewCompany.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/DataFileParts.h"
#include "data/IniDocument.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"

namespace lorvane {
namespace {

constexpr const char* kToday = "(today)";

struct DesignedKey {
  const char* section;
  const char* key;
  const char* value;
};

// Readers take some of these by their place in the section, so the order is part of the format.
constexpr std::array kDesignedKeys{
    DesignedKey{"Environment", "ToolBar", "-1"},
    DesignedKey{"Environment", "StatusBar", "-1"},
    DesignedKey{"Environment", "Setup", "0"},
    DesignedKey{"Assessment", "LastEntry", kToday},
    DesignedKey{"Assessment", "Default", "0"},
    DesignedKey{"Assessment", "Industry", "1"},
    DesignedKey{"Assessment", "CurrentYear", "0"},
    DesignedKey{"Remittance", "Preview", "-1"},
    DesignedKey{"Remittance", "Copies", "1"},
    DesignedKey{"Remittance", "Export", "-1"},
    DesignedKey{"Remittance", "Nav", "-1"},
    DesignedKey{"Remittance", "Progress", "-1"},
    DesignedKey{"Remittance", "Refresh", "-1"},
    DesignedKey{"Remittance", "Search", "-1"},
    DesignedKey{"Remittance", "Zoom", "-1"},
    DesignedKey{"Remittance", "From", kToday},
    DesignedKey{"Remittance", "To", kToday},
    DesignedKey{"Environment", "DataFiles", "-1"},
    DesignedKey{"Environment", "Company", "0"},
    DesignedKey{"Environment", "SubContractors", "0"},
    DesignedKey{"Environment", "Employees", "0"},
    DesignedKey{"Environment", "Name", "None"},
};

std::string ConfigFileOf(const std::string& dataFile) {
  return GetPathPart(dataFile) + "LorvaneConfig.ini";
}

// Raises the file layer's error.
void WriteConfigFile(ScreenContext context, const std::string& dataFile) {
  Session& session = context.session;
  const std::string path = GetPathPart(dataFile);
  const std::string folder = path.empty() ? path : path.substr(0, path.size() - 1);
  session.gConfigFile = folder;
  session.gDataConn->DataSource = folder;

  IniDocument document;
  document.Set("DataBase", "Path", folder);
  document.Set("Database", "File", GetNamePart(dataFile));
  const std::string today = ShortDate(context.services.Now().Day());
  for (const DesignedKey& key : kDesignedKeys) {
    document.Set(key.section, key.key, key.value == kToday ? today : std::string(key.value));
  }
  session.files.Write(ConfigFileOf(dataFile), document.Text());
}

// What is wrong with the file that was just opened, or couldn't be; empty when nothing is.
std::string FaultOf(DataConnection& connection) {
  if (!connection.DataOpen()) {
    return connection.Errors().front().description;
  }
  const std::vector<std::string> faults = connection.Connection().CheckIntegrity();
  return faults.empty() ? std::string() : faults.front();
}

void RemoveQuietly(const std::function<void()>& remove) {
  try {
    remove();
  } catch (const RuntimeError&) {
    // The failure that led here has been told.
  }
}

}  // namespace

bool CopyTemplateDatabase(ScreenContext context, const std::string& destination) {
  try {
    if (const auto log = FindLogOf(context.session.files, destination)) {
      throw RuntimeError(error_number::kFileAlreadyExists, "'" + *log + "' is there already.");
    }
    context.session.files.Copy(context.session.programFolder + "/Resource/Template/Data.mdb",
                               destination);
    return true;
  } catch (const RuntimeError& error) {
    if (error.Number() == error_number::kFileAlreadyExists) {
      context.services.MsgBox(
          "The company you have entered already exists.\r\n"
          "Please enter a new company name before proceeding.",
          box::kExclamation, "Company");
    } else {
      ShowError(context, error, box::kExclamation);
    }
    return false;
  }
}

void CreateConfigFile(ScreenContext context, const std::string& dataFile) {
  try {
    WriteConfigFile(context, dataFile);
  } catch (const RuntimeError&) {
    // Nobody is told; the company opens with the defaults of every key.
  }
}

bool HoldsCompany(Files& files, const std::string& dataFile) {
  return files.Exists(FindWithoutCase(ConfigFileOf(dataFile)));
}

bool MakeCompanyFiles(ScreenContext context, const std::string& dataFile) {
  if (!CopyTemplateDatabase(context, dataFile)) {
    return false;
  }
  Session& session = context.session;
  const std::string configFile = session.gConfigFile;
  const std::string dataSource = session.gDataConn->DataSource;
  try {
    WriteConfigFile(context, dataFile);
    return true;
  } catch (const RuntimeError& error) {
    RemoveQuietly([&] { session.files.Remove(dataFile); });
    session.gConfigFile = configFile;
    session.gDataConn->DataSource = dataSource;
    ShowError(context, error, box::kExclamation);
    return false;
  }
}

bool OpenNewCompany(ScreenContext context, const std::string& dataFile) {
  Session& session = context.session;
  session.gDataConn->DataSource = dataFile;
  const std::string fault = FaultOf(*session.gDataConn);
  if (fault.empty()) {
    session.gConfigFile = ConfigFileOf(dataFile);
    return true;
  }
  session.gDataConn->DataClose();
  RemoveQuietly([&] { RemoveDataFile(session.files, dataFile); });
  RemoveQuietly([&] { session.files.Remove(ConfigFileOf(dataFile)); });
  ShowError(context, RuntimeError(error_number::kEngineFailure, fault), box::kCritical);
  return false;
}

}  // namespace lorvane
