#pragma once

#include <QIcon>

namespace lorvane {

/// A picture of the program's own set, by the name of its drawing. It is sharp at every size and
/// takes the colour of the text that it stands beside, on light and dark grounds.
[[nodiscard]] QIcon IconOf(const char* name);

/// The program's own icon.
[[nodiscard]] QIcon ProgramIcon();

}  // namespace lorvane
