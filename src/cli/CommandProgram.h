#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "cli/CommandFailure.h"
#include "cli/CommandLineServices.h"
#include "reports/ReportPainter.h"
#include "screen/Session.h"

namespace lorvane {

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
  /// Raises CommandFailure with the reason when it can't, or when the configuration file can't be
  /// read.
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
  /// Raises CommandFailure when FILE names a folder, which is no data file's name.
  void RequireFileName() const;
  /// The exit status of a command that the user or a box has refused. Raises CommandFailure when a
  /// question was refused because nobody was there to answer it.
  [[nodiscard]] int Refused() const;
  /// Puts a sentence on standard error about what stopped nobody; nothing for an empty one.
  static void Warn(const std::string& sentence);
  /// Raises the engine's error that a window or a record passed over in silence, if there was one:
  /// a command that met it isn't done.
  void RaiseEngineError();
  /// The first value of a statement's first row; null when there is none.
  [[nodiscard]] Value QueryValue(const std::string& statement);

 private:
  void RequireReadableSettings() const;

  std::string file_;
  std::unique_ptr<Engine> engine_;
  DiskFiles files_;
  ScreenRegistry screens_;
  std::unique_ptr<ReportPainter> painter_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<CommandLineServices> services_;
};

/// "error 53: There is no file 'x'."
[[nodiscard]] std::string ErrorSentence(std::int32_t number, const std::string& description);

}  // namespace lorvane
