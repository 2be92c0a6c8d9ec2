#pragma once

#include <initializer_list>

class QGroupBox;

namespace lorvane {

class Command;
class Frame;
class WindowBinder;

/// A button of a strip: its picture by name, and whether a gap stands before it.
struct StripTool {
  Command* command;
  const char* icon;
  bool gapBefore = false;
};

/// A strip of tool buttons behind the window's edge, in their frame.
[[nodiscard]] QGroupBox* MakeToolStrip(WindowBinder& binder, Frame& frame,
                                       std::initializer_list<StripTool> tools);

}  // namespace lorvane
