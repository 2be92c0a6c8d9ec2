#pragma once

#include <string>

#include "screen/Lists.h"

namespace lorvane {

/// The drop-down list of Canadian provinces and territories by their codes, and behind them that
/// of American states.
class ProvinceBox : public ComboBox {
 public:
  enum class Places { kCanada, kCanadaAndStates };

  ProvinceBox(Screen& screen, std::string name, Places places = Places::kCanadaAndStates);

  /// Selects the code. One that isn't offered shows as a blank, and is kept all the same.
  void Show(const std::string& code);
  /// The code selected, or with none selected the one that was to be shown.
  [[nodiscard]] const std::string& Code() const;

 private:
  std::string shown_;
};

}  // namespace lorvane
