#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "screen/Menu.h"

namespace lorvane {

/// The menu of the main window in its designed state: that of a program with no company open.
class MainMenu {
 public:
  explicit MainMenu(Screen& screen);

  /// The entry of that name, which must be one of the menu's.
  [[nodiscard]] MenuEntry& Entry(std::string_view name) const;
  [[nodiscard]] const std::vector<std::unique_ptr<MenuEntry>>& Entries() const { return entries_; }

  /// Switches the menu for an opened file: an ordinary company, or a year-end archive, which allows
  /// reports and the two employer-update windows alone.
  void Activate(bool yearEndFile);

 private:
  std::vector<std::unique_ptr<MenuEntry>> entries_;
};

}  // namespace lorvane
