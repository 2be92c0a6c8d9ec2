#include "desktop/DesktopShell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <array>
#include <csignal>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "desktop/binder/QtText.h"

namespace lorvane {
namespace {

constexpr int kDone = 33;
constexpr int kNoProgramForIt = 31;

// Calculators of the desktops, the more common ones first.
constexpr std::array kCalculators{
    "gnome-calculator", "kcalc",      "mate-calc",         "qalculate-gtk",
    "qalculate-qt",     "galculator", "deepin-calculator", "elementary-calculator",
    "speedcrunch",      "xcalc"};

QString FindProgram(const std::string& name) {
  if (!EqualsNoCase(name, "calc.exe")) {
    return QStandardPaths::findExecutable(ToQt(name));
  }
  for (const char* calculator : kCalculators) {
    QString found = QStandardPaths::findExecutable(QLatin1String(calculator));
    if (!found.isEmpty()) {
      return found;
    }
  }
  return {};
}

ShellResult StartProgram(const QString& program, const ShellRequest& request) {
  qint64 process = 0;
  const bool started = QProcess::startDetached(
      program, QProcess::splitCommand(ToQt(request.parameters)), ToQt(request.folder), &process);
  return started ? ShellResult{kDone, static_cast<int>(process)} : ShellResult{};
}

}  // namespace

ShellResult RunOnDesktop(const ShellRequest& request) {
  const QString program = FindProgram(request.file);
  if (!program.isEmpty()) {
    return StartProgram(program, request);
  }
  const QString file = ToQt(request.file);
  const bool isThere = QFileInfo::exists(file);
  if (!isThere && QUrl(file).scheme().size() < 2) {
    throw RuntimeError(error_number::kFileNotFound);
  }
  const QUrl address =
      isThere ? QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()) : QUrl(file);
  return {QDesktopServices::openUrl(address) ? kDone : kNoProgramForIt, 0};
}

bool IsProcessRunning(int process) { return process > 0 && ::kill(process, 0) == 0; }

}  // namespace lorvane
