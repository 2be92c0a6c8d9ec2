#include "cli/CommandProgram.h"

#include <filesystem>
#include <iostream>
#include <vector>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "cli/Arguments.h"
#include "cli/CompanyCheck.h"
#include "cli/Console.h"
#include "print/OffscreenPainter.h"
#include "shell/TableUpgrades.h"
#include "shell/modLorvane.h"

namespace lorvane {

CommandProgram::CommandProgram(const CommandOptions& options)
    : file_(options.file.empty() ? options.file : AbsolutePath(options.file)),
      engine_(MakeFileEngine()),
      screens_(AllScreens()),
      painter_(MakeOffscreenPainter()) {
  const Clock clock = SystemClock();
  session_ = Main({engine_.get(), ProgramFolder(), clock}, files_);
  services_ = std::make_unique<CommandLineServices>(*session_, screens_, StandardConsole(), clock,
                                                    options.assumeYes);
  services_->SetPainter(painter_.get());
}

CommandProgram::~CommandProgram() { session_->gDataConn->DataClose(); }

void CommandProgram::OpenCompany() {
  OpenFile();
  RequireReadableSettings();
  const std::string table = VerifyCompanyTables(Context());
  if (!table.empty()) {
    if (Connection().HasTable(table)) {
      // One that can't be read says why.
      static_cast<void>(Connection().Query("SELECT * FROM " + table));
    }
    throw CommandFailure("The table " + table + " of '" + file_ +
                         "' has a shape that this program doesn't know.");
  }
  CheckAssetTable(Context());
  CheckPrincipalTable(Context());
}

void CommandProgram::OpenFile() {
  DataConnection& connection = *session_->gDataConn;
  connection.DataSource = file_;
  if (!connection.DataOpen()) {
    throw CommandFailure(connection.Errors().front().description);
  }
  session_->gConfigFile = GetPathPart(file_) + "LorvaneConfig.ini";
}

void CommandProgram::OpenCompanyToChange() {
  OpenCompany();
  if (IsArchive()) {
    throw CommandFailure("'" + file_ +
                         "' is the archive of a closed year: nothing can be changed in it.");
  }
}

// One that can't be read might be an archive's.
void CommandProgram::RequireReadableSettings() const {
  const std::string config = FindWithoutCase(session_->gConfigFile);
  if (session_->files.Exists(config) && !session_->files.Read(config)) {
    throw CommandFailure("'" + config + "' can't be read.");
  }
}

bool CommandProgram::IsArchive() const {
  return !session_->Ini().KeyGet("DataBase", "YE", "").empty();
}

void CommandProgram::OpenCompanyForPayments() {
  OpenCompanyToChange();
  const std::vector<std::string> findings = CheckAssessmentSettings(*session_);
  if (!findings.empty()) {
    throw CommandFailure(findings.front());
  }
}

void CommandProgram::RequireFileName() const {
  std::error_code ignored;
  if (GetNamePart(file_).empty() || std::filesystem::is_directory(file_, ignored)) {
    throw CommandFailure("'" + file_ + "' is a folder: the name of a data file is wanted.");
  }
}

int CommandProgram::Refused() const {
  if (services_->RefusedUnasked()) {
    throw CommandFailure("Nothing was done. --yes answers the question with Yes.");
  }
  return 1;
}

void CommandProgram::Warn(const std::string& sentence) {
  if (!sentence.empty()) {
    std::cerr << "lorvane-cli: " << sentence << std::endl;
  }
}

void CommandProgram::RaiseEngineError() {
  const std::vector<EngineError>& errors = Connection().Errors();
  if (!errors.empty()) {
    throw RuntimeError(errors.front().number, errors.front().description);
  }
}

Value CommandProgram::QueryValue(const std::string& statement) {
  const ResultTable table = Connection().Query(statement);
  return table.rows.empty() ? Value() : table.rows.front().front();
}

std::string ErrorSentence(std::int32_t number, const std::string& description) {
  return "error " + ErrorNumberText(number) + ": " + description;
}

}  // namespace lorvane
