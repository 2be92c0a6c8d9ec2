#pragma once

#include <string>

namespace lorvane {

class Session;

// Which file holds the published rates. It comes with the program. Where the program's folder can't
// be written, a user who brings rates in gets a copy of their own, which is read from then on.

/// The file to read: the user's own where there is one and the program's can't be written, else the
/// program's.
[[nodiscard]] std::string RatesToRead(const Session& session);

/// The file to write to. Makes the user's own as a copy of the program's when it is needed and
/// isn't there; raises the error of Files when that fails, and leaves no part of a file behind
/// then.
[[nodiscard]] std::string RatesToChange(const Session& session);

}  // namespace lorvane
