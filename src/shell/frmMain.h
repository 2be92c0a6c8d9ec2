#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "screen/Screen.h"
#include "shell/MainMenu.h"

namespace lorvane {

/// The main window: the menu, the status bar, and the commands that live in it. Every other window
/// opens from here and is modal over it.
class frmMain : public Screen {
 public:
  explicit frmMain(ScreenContext context);

  void Load() override;
  /// Ends the program at once: open windows are not asked to save.
  [[nodiscard]] bool QueryUnload() override;
  [[nodiscard]] std::optional<std::string> Property(std::string_view name) const override;
  bool Call(std::string_view operation) override;

  /// Open Company: asks for a data file, opens it and switches the menu on. A failed attempt or a
  /// cancelled dialog leaves the program with the connection closed, and title and menu as they
  /// were.
  void mnuFOpenCompany_Click();
  /// Switches the menu for the opened file and tells the user when it is a year-end archive.
  void ActivateMenu();
  /// Puts the company's name from its configuration file into the title, and the kind of payee last
  /// used into the status bar. Raises 13 when that key holds no number.
  void RefreshCompanyCaption();
  /// Whether the open company's configuration file marks an archive of a closed year.
  [[nodiscard]] bool IsYearEndFile() const;

  /// Kept for callers; nothing is derived from it.
  std::string CompanyName;
  /// The window's background: nothing for the system's own colour, or 0xRRGGBB.
  [[nodiscard]] std::optional<int> BackColour() const { return backColour_; }

 private:
  void ConnectMenu();
  void NewCompany();
  void OpenChosenCompany();

  MainMenu menu_;
  std::optional<int> backColour_;
};

/// "Lorvane Assessment for Windows " and the version: how every title of the main window begins.
[[nodiscard]] std::string MainTitle();
/// "Version: " and the version.
[[nodiscard]] std::string VersionLine();

}  // namespace lorvane
