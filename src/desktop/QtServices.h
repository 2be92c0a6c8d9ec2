#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "desktop/PrinterPainter.h"
#include "desktop/binder/ScreenGate.h"
#include "desktop/windows/WindowRegistry.h"
#include "screen/ScreenHost.h"
#include "screen/SystemClock.h"

namespace lorvane {

class HelpWindow;
class MainWindow;
class SplashWindow;

/// The way out of a screen for the desktop: boxes, dialogs and windows of the toolkit.
class QtServices : public ScreenHost {
 public:
  QtServices(Session& session, const ScreenRegistry& screens, ScreenGate& gate, Clock clock);
  ~QtServices() override;

  /// Called whenever the main window has been shown and the program waits for its user.
  std::function<void()> OnMainWindow;
  /// Opens a company that was chosen elsewhere than in the dialog of Open Company, and tells in a
  /// box why it can't be opened.
  void OpenCompany(const std::string& file);

  int MsgBox(const std::string& text, int flags, const std::string& title) override;
  [[nodiscard]] std::string InputBox(const std::string& prompt, const std::string& title,
                                     const std::string& proposal) override;
  [[nodiscard]] std::string AskForFile(const FileDialog& dialog) override;
  void SetPointer(int shape) override;
  void Beep() override;
  [[nodiscard]] DateTime Now() const override { return clock_(); }
  void ShowModal(Screen& screen) override;
  void ArrangeWindows(WindowArrangement arrangement) override;
  /// "calc.exe" is the first desktop calculator that is found. Raises 53 when there is none, or
  /// when another program or document can't be found.
  ShellResult RunShell(const ShellRequest& request) override;
  [[nodiscard]] bool IsRunning(int process) const override;
  void ShowHelp() override;
  [[nodiscard]] ReportPainter* Painter() override { return &painter_; }

 protected:
  void RunModal(Screen& screen) override;
  void ShowModeless(Screen& screen) override;
  void HideModeless(Screen& screen) override;

 private:
  /// The window in front, over which the next one opens; null when there is none.
  [[nodiscard]] QWidget* Front() const;
  void TellClosed();
  void OpenSample();

  Session& session_;
  ScreenGate& gate_;
  Clock clock_;
  WindowRegistry windows_ = AllWindows();
  PrinterPainter painter_;
  std::unique_ptr<SplashWindow> splash_;
  std::unique_ptr<MainWindow> main_;
  /// The windows of the screens that are open, but for the splash screen and the main window.
  std::map<const Screen*, std::unique_ptr<ScreenDialog>> open_;
  std::unique_ptr<HelpWindow> help_;
  /// The answer to the next question for a file to open; empty when the user is asked.
  std::string fileToOpen_;
};

}  // namespace lorvane
