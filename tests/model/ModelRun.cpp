#include "ModelRun.h"

#include <algorithm>
#include <memory>
#include <sstream>

#include "Comparison.h"
#include "Script.h"
#include "Steps.h"
#include "cli/ScriptErrors.h"
#include "cli/ScriptRunner.h"
#include "shell/modLorvane.h"
#include "support/TestCompany.h"

namespace lorvane::model {
namespace {

const std::string kScriptName = "model";

struct Outcome {
  /// Empty when the script holds.
  std::string said;
  /// The line that it ended at.
  int line = 0;
};

using AfterLine = std::function<void(ScriptProgram&, int)>;

// The whole program, with a new company in the script's ${DIR}.
Outcome RunScriptText(const std::string& text, AfterLine afterLine) {
  TestCompany company;
  company.GetSession().gDataConn->DataClose();
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  DiskFiles files;
  const std::unique_ptr<Engine> engine = MakeFileEngine();
  const Clock clock = FixedClock(ScriptedServices::kNow);
  ScriptStage stage;
  stage.makeSession = [&] { return Main({engine.get(), ProgramFolder(), clock}, files); };
  stage.screens = AllScreens();
  stage.endOnError = [](ScreenContext context, const RuntimeError& error) {
    EndOnUnhandledError(context, error);
  };
  stage.afterLine = std::move(afterLine);
  ScriptRunner runner(std::move(stage), {in, out, err}, clock);
  if (runner.Run(kScriptName, text, {{"DIR", company.Folder()}})) {
    return {};
  }
  Outcome outcome{out.str(), 0};
  std::istringstream(outcome.said.substr(kScriptName.size() + 1)) >> outcome.line;
  return outcome;
}

}  // namespace

std::optional<ModelFailure> RunModel(unsigned seed, const std::vector<unsigned>& steps) {
  Script script;
  Steps taken(seed, script);
  for (const unsigned step : steps) {
    taken.Take(step);
  }
  Comparison comparison(ScriptedServices::kNow);
  const Outcome outcome =
      RunScriptText(script.Text(script.Count()), [&](ScriptProgram& program, int line) {
        const Checkpoint* checkpoint = script.CheckpointAt(line);
        if (checkpoint != nullptr && !comparison.Holds(program, *checkpoint)) {
          throw ScriptFailure{"the files differ from the book", line};
        }
      });
  if (outcome.said.empty()) {
    return std::nullopt;
  }
  ModelFailure failure{outcome.said, script.Text(outcome.line), script.StepOf(outcome.line)};
  for (const std::string& line : comparison.ReasonLines()) {
    failure.script += line + "\n";
  }
  return failure;
}

std::string RunAlone(const std::string& script) { return RunScriptText(script, {}).said; }

}  // namespace lorvane::model
