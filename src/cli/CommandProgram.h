#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "cli/CommandLineServices.h"
#include "reports/ReportPainter.h"
#include "screen/Session.h"

namespace lorvane {

/// A command that can't be done: a sentence for standard error and exit status 1.
class CommandFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What every command has in common.
struct CommandOptions {
  /// The company's data file; empty for a command about none.
  std::string file;
  /// Answers every question with Yes.
  bool assumeYes = false;
};

/// The program as a command runs it: a session, its screens, and the console as their way out.
class CommandProgram {
 public:
  explicit CommandProgram(const CommandOptions& options);
  CommandProgram(const CommandProgram&) = delete;
  CommandProgram& operator=(const CommandProgram&) = delete;
  ~CommandProgram();

  /// Opens the company as Open Company does, which brings a file of an earlier release up to date.
  /// Raises CommandFailure with the reason when it can't.
  void OpenCompany();
  /// As OpenCompany, for commands that look at the file as it stands and leave its tables alone.
  void OpenFile();
  /// As OpenCompany, for commands that change the payroll: refuses a year-end archive.
  void OpenCompanyToChange();
  /// Whether the open company is the archive of a closed year.
  [[nodiscard]] bool IsArchive() const;
  /// As OpenCompanyToChange; refuses a configuration file, too, whose lines the payment window
  /// would misread.
  void OpenCompanyForPayments();

  [[nodiscard]] const std::string& File() const { return file_; }
  [[nodiscard]] Session& GetSession() { return *session_; }
  [[nodiscard]] CommandLineServices& Services() { return *services_; }
  [[nodiscard]] ScreenContext Context() { return services_->Context(); }
  [[nodiscard]] EngineConnection& Connection() { return session_->gDataConn->Connection(); }
  /// Puts a sentence on standard error about what stopped nobody; nothing for an empty one.
  static void Warn(const std::string& sentence);
  /// Raises the engine's error that a window or a record passed over in silence, if there was one:
  /// a command that met it isn't done.
  void RaiseEngineError();
  /// The first value of a statement's first row; null when there is none.
  [[nodiscard]] Value QueryValue(const std::string& statement);

 private:
  std::string file_;
  std::unique_ptr<Engine> engine_;
  DiskFiles files_;
  ScreenRegistry screens_;
  std::unique_ptr<ReportPainter> painter_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<CommandLineServices> services_;
};

}  // namespace lorvane
