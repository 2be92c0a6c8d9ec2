#include "cli/RunScript.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>
#include <utility>

#include "Version.h"
#include "basic/ReadFile.h"
#include "basic/Text.h"
#include "cli/CommandFailure.h"
#include "cli/Console.h"
#include "cli/ScriptRunner.h"
#include "data/Files.h"
#include "data/engine/Engine.h"
#include "print/OffscreenPainter.h"
#include "reports/ReportPainter.h"
#include "screen/SystemClock.h"
#include "shell/modLorvane.h"

namespace lorvane {
namespace {

// Far above any script that somebody has written.
constexpr std::size_t kMostBytes = std::size_t{16} << 20U;

// A pipe will do as well as a file. Raises CommandFailure for what is no script.
std::string ReadScript(const std::string& path) {
  std::error_code ignored;
  if (std::filesystem::is_directory(path, ignored)) {
    throw CommandFailure("'" + path + "' is a folder: a script is wanted.");
  }
  std::optional<std::string> text = ReadFile(path, kMostBytes);
  if (!text) {
    throw CommandFailure("The script '" + path + "' can't be read.");
  }
  if (text->size() > kMostBytes) {
    throw CommandFailure("'" + path + "' is no script: it is larger than 16 MB.");
  }
  return *std::move(text);
}

}  // namespace

int RunScript(const ScriptOptions& options) {
  const Console console = StandardConsole();
  DiskFiles files;
  const std::string text = ReadScript(options.path);
  const std::unique_ptr<Engine> engine = MakeFileEngine();
  const std::unique_ptr<ReportPainter> painter = MakeOffscreenPainter();
  const Clock clock = options.now ? FixedClock(*options.now) : SystemClock();
  ScriptVariables variables = options.variables;
  variables.emplace("VERSION", kVersionText);

  ScriptStage stage;
  stage.makeSession = [&] { return Main({engine.get(), ProgramFolder(), clock}, files); };
  stage.screens = AllScreens();
  stage.endOnError = [](ScreenContext context, const RuntimeError& error) {
    EndOnUnhandledError(context, error);
  };
  stage.painter = painter.get();
  ScriptRunner runner(std::move(stage), console, clock);
  return runner.Run(options.path, ToUtf8(text), variables) ? 0 : 1;
}

}  // namespace lorvane
