#include "ScriptTestRun.h"

#include <memory>
#include <sstream>

#include "ScriptTestScreens.h"
#include "basic/RuntimeError.h"
#include "cli/ScriptRunner.h"
#include "screen/modForm.h"

namespace lorvane {

ScriptOutcome RunOnSmallScreens(std::string_view script, const std::string& folder) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  DiskFiles files;
  const std::unique_ptr<Engine> engine = MakeFileEngine();
  const Clock clock = FixedClock({2026, 1, 5, 10, 0, 0});
  ScriptStage stage;
  stage.makeSession = [&] {
    auto session = std::make_unique<Session>(DataEnvironment{engine.get(), "/", clock}, files);
    session->gDataConn->Password = kDataFilePassword;
    return session;
  };
  stage.screens = SmallScreens();
  stage.endOnError = [](ScreenContext context, const RuntimeError& error) {
    ShowError(context, error, box::kCritical);
    throw ProgramEnded{1};
  };
  ScriptRunner runner(std::move(stage), {in, out, err}, clock);
  const bool holds = runner.Run("story", script, {{"DIR", folder}});
  return {holds, out.str(), err.str()};
}

}  // namespace lorvane
