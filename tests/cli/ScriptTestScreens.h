#pragma once

#include <optional>
#include <string>

#include "screen/Buttons.h"
#include "screen/Dates.h"
#include "screen/ListView.h"
#include "screen/Lists.h"
#include "screen/MaskedText.h"
#include "screen/Menu.h"
#include "screen/Screen.h"
#include "screen/ScreenHost.h"
#include "screen/TabStrip.h"
#include "screen/TextBox.h"

namespace lorvane {

/// A main window whose menu opens a company, opens the window below, asks, fails and ends.
class SmallMain : public Screen {
 public:
  explicit SmallMain(ScreenContext context);

  [[nodiscard]] bool QueryUnload() override;

 private:
  void OpenCompany();

  MenuEntry mnuFile_;
  MenuEntry mnuFOpenCompany_;
  MenuEntry mnuFWindow_;
  MenuEntry mnuFGuarded_;
  MenuEntry mnuFMissing_;
  MenuEntry mnuFFail_;
  MenuEntry mnuFAsk_;
  MenuEntry mnuFFind_;
  MenuEntry mnuFExit_;
  MenuEntry mnuOff_;
  MenuEntry mnuOInside_;
};

/// A modal window with a control of every kind. lblLog tells what ran.
class SmallWindow : public Screen {
 public:
  explicit SmallWindow(ScreenContext context);

  /// Asks while something was typed that isn't saved.
  [[nodiscard]] bool QueryUnload() override;
  [[nodiscard]] std::optional<std::string> Property(std::string_view name) const override;

 protected:
  void KeyPreview(int& key) override;

 private:
  void Log(const std::string& event);

  TextBox txtName_;
  TextBox txtDate_;
  MaskedText txtMasked_;
  CheckBox chkOn_;
  OptionButton optA_;
  OptionButton optB_;
  ListBox lstItems_;
  ComboBox cboKind_;
  ComboBox cboFree_;
  ListView lvwRows_;
  DatePicker dtpDay_;
  Calendar calDay_;
  TabStrip tabPages_;
  Command cmdOK_;
  Command cmdChild_;
  Command cmdFail_;
  Command cmdOff_;
  Command cmdHidden_;
  Label lblLog_;
  MenuEntry mnuPopUp_;
  MenuEntry mnuPoSort_;
  bool changed_ = false;
};

[[nodiscard]] ScreenRegistry SmallScreens();

}  // namespace lorvane
