#include "support/TestCompany.h"

#include "basic/RuntimeError.h"
#include "cli/Statements.h"
#include "company/modNewCompany.h"

namespace lorvane {

const ScreenRegistry& NoScreens() {
  static const ScreenRegistry kNone;
  return kNone;
}

TestCompany::TestCompany(const ScreenRegistry& screens)
    : engine_(MakeFileEngine()),
      session_({engine_.get(), LORVANE_PROGRAM_FOLDER, FixedClock(ScriptedServices::kNow)}, files_),
      services_(session_, screens) {
  if (!CopyTemplateDatabase(Context(), DataFile())) {
    throw RuntimeError(error_number::kFileNotFound, services_.NextBox());
  }
  CreateConfigFile(Context(), DataFile());
  session_.gConfigFile = ConfigFile();
  session_.gDataConn->DataSource = DataFile();
  session_.gDataConn->Password = kDataFilePassword;
  if (!session_.gDataConn->DataOpen()) {
    throw RuntimeError(error_number::kEngineFailure, session_.gDataConn->ErrorHandler());
  }
}

std::string TestCompany::First(std::string_view statement) {
  return FirstValue(Connection(), statement);
}

std::string TestCompany::Ini(const std::string& section, const std::string& key) {
  return session_.Ini().KeyGet(section, key, "");
}

void TestCompany::SetIni(const std::string& section, const std::string& key,
                         const std::string& value) {
  session_.Ini().KeySave(value, section, key);
}

}  // namespace lorvane
