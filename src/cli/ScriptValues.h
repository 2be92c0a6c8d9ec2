#pragma once

#include <string>

#include "cli/ScriptProgram.h"

namespace lorvane {

// What a script can look at. Texts are as they stand, line breaks included.

/// What a name tells about the running program: title, main.title, active, focus, pointer,
/// status.Msg and its neighbours, NAME, NAME.attribute, NAME[2] or NAME[2,3] of the screen in
/// front, or one of its public properties. Raises ScriptFailure when there is nothing of that name.
[[nodiscard]] std::string ReadValue(ScriptProgram& program, const std::string& name);

/// The screen in front with every control: name, text and state, and the entries of lists.
[[nodiscard]] std::string DescribeScreen(const Screen& screen);

}  // namespace lorvane
