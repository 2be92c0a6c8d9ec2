#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Console.h"
#include "cli/ScriptDialogue.h"
#include "cli/ScriptErrors.h"
#include "cli/ScriptParser.h"
#include "cli/ScriptProgram.h"
#include "screen/SystemClock.h"

namespace lorvane {

/// Runs one screen script: reads its lines, drives the screens, compares what it expects.
///
/// A window that a line opens is worked on by the lines that follow, until it is closed; then the
/// line that opened it goes on.
class ScriptRunner {
 public:
  ScriptRunner(ScriptStage stage, Console console, Clock clock);

  /// True when every line was carried out and nothing is left over; else the reason stands on
  /// standard output, as "NAME:LINE: reason". For one run only.
  bool Run(const std::string& name, std::string_view text, const ScriptVariables& variables);

 private:
  static void Check(const ScriptLine& line);

  void Start();
  void RunToTheEnd();
  /// Runs lines until the window is closed; all of them when there is none.
  void RunLines(const Screen* window);
  void RunLine(const ScriptLine& line);
  void Act(const ScriptLine& line);
  [[noreturn]] void EndOnError(const UnhandledError& failed);
  [[nodiscard]] ScriptProgram& Program() const;

  // The verbs that act on no control.
  void OpenCompany(const std::string& path);
  void RunFailing(const ScriptLine& line);
  void Answer(const ScriptLine& line);
  void RunStatement(const std::string& statement);
  void WriteIni(const ScriptLine& line);

  ScriptStage stage_;
  Console console_;
  Clock clock_;
  ScriptDialogue dialogue_;
  std::vector<ScriptLine> lines_;
  std::size_t next_ = 0;
  /// Null after the program's end.
  std::unique_ptr<ScriptProgram> program_;
};

}  // namespace lorvane
