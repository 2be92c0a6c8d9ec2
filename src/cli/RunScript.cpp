#include "cli/RunScript.h"

#include <memory>
#include <ostream>

#include "Version.h"
#include "basic/Text.h"
#include "cli/Console.h"
#include "cli/ScriptRunner.h"
#include "data/Files.h"
#include "data/engine/Engine.h"
#include "print/OffscreenPainter.h"
#include "reports/ReportPainter.h"
#include "screen/SystemClock.h"
#include "shell/modLorvane.h"

namespace lorvane {

int RunScript(const ScriptOptions& options) {
  const Console console = StandardConsole();
  DiskFiles files;
  const std::optional<std::string> text = files.Read(options.path);
  if (!text) {
    console.out << options.path << ": the script can't be read" << std::endl;
    return 1;
  }
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
  return runner.Run(options.path, ToUtf8(*text), variables) ? 0 : 1;
}

}  // namespace lorvane
