#pragma once

#include "cli/ScriptDialogue.h"
#include "cli/ScriptParser.h"
#include "cli/ScriptProgram.h"

namespace lorvane {

/// Raises ScriptFailure when an expect line has too few words or too many for what it looks at.
void CheckExpectation(const ScriptLine& line);

/// Whether the line can be looked at when the program has ended: messages, questions and files.
[[nodiscard]] bool OutlivesProgram(const ScriptLine& line);

/// Compares what an expect line looks at with what it expects, line breaks taken as equal.
/// `program` is null after the program's end. Raises ScriptFailure when something else stands
/// there.
void Expect(ScriptProgram* program, ScriptDialogue& dialogue, const ScriptLine& line);

}  // namespace lorvane
