#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screen/Control.h"

namespace lorvane {

/// Pages of a window, one in front. Controls lie on a page by their TabPage, counted from 1.
class TabStrip : public Control {
 public:
  TabStrip(Screen& screen, std::string name, std::vector<std::string> titles);

  [[nodiscard]] const std::vector<std::string>& Titles() const { return titles_; }
  /// The page in front, from 0.
  [[nodiscard]] int Tab() const { return tab_; }
  /// Raises 380 for a page that isn't there.
  void SetTab(int tab);

  /// A user turns to a page.
  void UserSelect(int tab);
  [[nodiscard]] std::string ShownText() const override;
  [[nodiscard]] std::optional<std::string> Attribute(std::string_view name) const override;

 private:
  std::vector<std::string> titles_;
  int tab_ = 0;
};

}  // namespace lorvane
