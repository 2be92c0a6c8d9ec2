#pragma once

#include <functional>
#include <string>

#include "cli/ScriptParser.h"
#include "cli/ScriptProgram.h"

namespace lorvane {

/// What a line of a script does to a control of the screen in front, as a user would with mouse and
/// keyboard.
///
/// A control that can't be used is left alone, with a note to the script's author; so is one that
/// can't get the focus because another keeps it.
class ScriptActions {
 public:
  using Note = std::function<void(const std::string&)>;

  /// Whether the verb acts on a control.
  [[nodiscard]] static bool Knows(const ScriptWord& verb);
  /// Raises ScriptFailure when the line has too few words or too many for its verb, which must be
  /// known.
  static void CheckWords(const ScriptLine& line);

  /// Raises ScriptFailure for a name that isn't there or a control of the wrong kind, and whatever
  /// the screen raises.
  static void Run(ScriptProgram& program, const ScriptLine& line, const Note& note);
};

}  // namespace lorvane
