#pragma once

#include <QString>
#include <QWidget>
#include <deque>
#include <functional>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>

#include "desktop/DesktopProgram.h"
#include "support/TemporaryFolder.h"

/// What a test expected and found is told as text.
void PrintTo(const QString& text, std::ostream* out);

namespace lorvane {

/// The desktop program with its main window open, and a copy of the sample company to work on. The
/// test acts on the real widgets; what it does in windows and boxes that open is queued beforehand.
/// A window that nobody expected, or an operation whose window didn't come, fails the test.
class DesktopRun {
 public:
  DesktopRun() : DesktopRun([](DesktopRun&) { return StartOrder(); }) {}
  /// As started with an order. What it opens is queued in `prepare`, which has the company already.
  explicit DesktopRun(const std::function<StartOrder(DesktopRun&)>& prepare);
  ~DesktopRun();
  DesktopRun(const DesktopRun&) = delete;
  DesktopRun& operator=(const DesktopRun&) = delete;

  [[nodiscard]] DesktopProgram& Program() { return *program_; }
  [[nodiscard]] QWidget& Main();
  [[nodiscard]] std::string DataFile() const { return folder_.File("Data.mdb"); }
  void SetIni(const std::string& section, const std::string& key, const std::string& value);
  /// The first column of a SELECT's first row as a listing shows it.
  [[nodiscard]] std::string First(const std::string& statement);

  /// What is done in the next window or box, which has this object name or title.
  void In(const QString& window, std::function<void(QWidget&)> work);
  /// The next box of this title is answered with a button of this text, mnemonic left out; the
  /// box's text must begin so.
  void Answer(const QString& title, const QString& text, const QString& button);
  /// Chooses from the main window's menu; comes back when every window that it opened is closed.
  void Choose(const char* entry);
  /// The next file dialog, of this object name or title, is given a file.
  void ChooseFile(const QString& dialog, const std::string& path);
  /// Open Company with the sample company's copy.
  void OpenCompany();

 private:
  struct Step {
    QString window;
    std::function<void(QWidget&)> work;
  };
  void Tick();

  TemporaryFolder folder_;
  std::deque<Step> steps_;
  std::unique_ptr<DesktopProgram> program_;
  std::unique_ptr<QObject> clockwork_;
  int idle_ = 0;
  int neglected_ = 0;
};

/// A named part of a window, which must be there.
template <typename Widget = QWidget>
[[nodiscard]] Widget& Part(const QWidget& window, const char* name) {
  auto* found = window.findChild<Widget*>(QLatin1String(name));
  if (found == nullptr) {
    throw std::runtime_error(std::string("there is no ") + name);
  }
  return *found;
}

/// The part of the window in front that has the focus.
[[nodiscard]] QWidget& Focused(const QWidget& window);

}  // namespace lorvane
