#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "cli/Console.h"
#include "screen/ScreenHost.h"
#include "screen/SystemClock.h"

namespace lorvane {

/// The way out of a screen for commands: boxes go to standard error as "[title] text", questions
/// are asked on a terminal and otherwise refused, and screens are driven by handlers in code.
class CommandLineServices : public ScreenHost {
 public:
  /// With `assumeYes` every question is answered Yes, or OK where there is no Yes, and nobody is
  /// asked.
  CommandLineServices(Session& session, const ScreenRegistry& registry, Console console,
                      Clock clock, bool assumeYes = false);

  /// Works on each modal screen of that name; the screen is closed afterwards. One with no handler
  /// is closed at once.
  void OnModal(const std::string& screenName, std::function<void(Screen&)> handler);

  /// Hands the text of each box of that title on before it is printed; true when that has told it,
  /// so that it isn't printed.
  void OnBox(const std::string& title, std::function<bool(const std::string& text)> teller) {
    tellers_[title] = std::move(teller);
  }
  /// Whether a question was refused because nobody was there to answer it.
  [[nodiscard]] bool RefusedUnasked() const { return refusedUnasked_; }

  /// Answers each input box of that title.
  void OnInput(const std::string& title, std::string text) { inputs_[title] = std::move(text); }

  int MsgBox(const std::string& text, int flags, const std::string& title) override;
  [[nodiscard]] std::string InputBox(const std::string& prompt, const std::string& title,
                                     const std::string& proposal) override;
  [[nodiscard]] std::string AskForFile(const FileDialog& dialog) override;
  void Beep() override { ++beeps_; }
  [[nodiscard]] int BeepCount() const { return beeps_; }
  [[nodiscard]] DateTime Now() const override { return clock_(); }
  /// Raises 53: a command launches nothing.
  ShellResult RunShell(const ShellRequest& request) override;
  [[nodiscard]] bool IsRunning(int /*process*/) const override { return false; }
  void ShowHelp() override;
  /// `painter` outlives this object; with null there are no fonts.
  void SetPainter(ReportPainter* painter) { painter_ = painter; }
  [[nodiscard]] ReportPainter* Painter() override { return painter_; }
  /// There are no windows.
  void ArrangeWindows(WindowArrangement /*arrangement*/) override {}

 protected:
  void RunModal(Screen& screen) override;
  /// Puts "[title] text" on standard error.
  void PrintBox(const std::string& title, const std::string& text) const;

 private:
  /// What the user types on one line; nothing at the end of the input.
  [[nodiscard]] std::optional<std::string> ReadLine() const;
  [[nodiscard]] int AskButton(int flags) const;
  [[nodiscard]] std::string AskText(const std::string& title, const std::string& prompt,
                                    const std::string& proposal) const;

  Console console_;
  Clock clock_;
  bool assumeYes_;
  ReportPainter* painter_ = nullptr;
  int beeps_ = 0;
  std::map<std::string, std::function<void(Screen&)>, std::less<>> modalHandlers_;
  std::map<std::string, std::string, std::less<>> inputs_;
  std::map<std::string, std::function<bool(const std::string&)>, std::less<>> tellers_;
  bool refusedUnasked_ = false;
};

}  // namespace lorvane
