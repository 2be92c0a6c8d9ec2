#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "cli/ScriptServices.h"
#include "screen/ScreenContext.h"
#include "screen/Session.h"

namespace lorvane {

class ReportPainter;
class RuntimeError;
class ScriptProgram;

/// What a script's program is made from, at the start and again by each restart.
struct ScriptStage {
  std::function<std::unique_ptr<Session>()> makeSession;
  /// Among them the main window, frmMain.
  ScreenRegistry screens;
  /// What the program does with an error that nobody handled; ends the program.
  std::function<void(ScreenContext, const RuntimeError&)> endOnError;
  /// What paints reports; null for a program without fonts.
  ReportPainter* painter = nullptr;
  /// Looks on after each line that was carried out, given by its number, while the program runs. It
  /// raises ScriptFailure for what must not be. Empty when nobody looks on.
  std::function<void(ScriptProgram&, int)> afterLine;
};

/// A running program with its main window, driven by a script. What is still open at its end is
/// closed with no question.
class ScriptProgram {
 public:
  static constexpr const char* kMainScreen = "frmMain";

  /// Everything handed in by reference outlives the program.
  ScriptProgram(const ScriptStage& stage, Console console, Clock clock, ScriptDialogue& dialogue,
                ScriptServices::ModalWork modalWork);
  ScriptProgram(const ScriptProgram&) = delete;
  ScriptProgram& operator=(const ScriptProgram&) = delete;
  ~ScriptProgram();

  /// Shows the main window, with no company.
  void Start();

  [[nodiscard]] Session& GetSession() { return *session_; }
  [[nodiscard]] ScriptServices& Services() { return services_; }
  [[nodiscard]] ScreenContext Context() { return services_.Context(); }

  [[nodiscard]] Screen& MainScreen() { return *mainScreen_; }
  [[nodiscard]] Screen& ActiveScreen();
  /// The active screen's control of that name, without regard to case. Raises ScriptFailure when
  /// there is none.
  [[nodiscard]] Control& Find(std::string_view name);

 private:
  std::unique_ptr<Session> session_;
  ScriptServices services_;
  std::unique_ptr<Screen> mainScreen_;
};

}  // namespace lorvane
