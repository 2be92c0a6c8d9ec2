#pragma once

#include <functional>
#include <memory>
#include <string>

#include "screen/ScreenHost.h"
#include "screen/Session.h"

namespace lorvane {

class RuntimeError;

/// The entry point of every front: makes the session with its connection to the sample company,
/// closed, and the password of every company. No command line is read and no file is opened.
[[nodiscard]] std::unique_ptr<Session> Main(DataEnvironment environment, Files& files);

/// The screens of all subsystems, by name.
[[nodiscard]] ScreenRegistry AllScreens();

/// Closes the connection and ends the program at once.
[[noreturn]] void ShutDown(ScreenContext context, int exitStatus = 0);

/// The one place where an error ends up that nobody handled: closes the data file, so that rows
/// written already stay, shows number and description, and ends the program with exit status 1.
[[noreturn]] void EndOnUnhandledError(ScreenContext context, const RuntimeError& error);

/// The folder of the running program, with no separator at its end; where its resources lie.
[[nodiscard]] std::string ProgramFolder();

}  // namespace lorvane
