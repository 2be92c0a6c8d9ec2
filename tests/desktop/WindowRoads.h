#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "DesktopRun.h"

namespace lorvane {

using WindowWork = std::function<void(QWidget&)>;

/// How a user comes to a window from the main window with the sample company open.
struct WindowRoad {
  std::string window;
  /// The main menu's entry with which it begins.
  const char* entry;
  /// Queues what is done on the way, `work` in the window itself, and what leads back. Empty for a
  /// window that stands inside the main one.
  std::function<void(DesktopRun&, const WindowWork& work)> walk;
  /// Tells two roads to one window apart.
  std::string face = {};
};

/// A road to every window of the registry.
[[nodiscard]] const std::vector<WindowRoad>& WindowRoads();

/// Goes there, does the work, and comes back with every window closed.
void Visit(DesktopRun& run, const WindowRoad& road, const WindowWork& work);

void PrintTo(const WindowRoad& road, std::ostream* out);

}  // namespace lorvane
