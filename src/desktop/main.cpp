#include <QApplication>
#include <QLocale>

#include "Version.h"
#include "desktop/DesktopProgram.h"
#include "desktop/binder/Icons.h"

namespace {

constexpr int kWrongUsage = 2;

}  // namespace

int main(int argc, char** argv) {
  // Dates and amounts have one form on every machine.
  QLocale::setDefault(QLocale(QLocale::English, QLocale::Canada));
  const QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("lorvane"));
  QApplication::setApplicationDisplayName(QString());
  QApplication::setApplicationVersion(QLatin1String(lorvane::kVersionText));
  QApplication::setDesktopFileName(QStringLiteral("lorvane"));
  QApplication::setWindowIcon(lorvane::ProgramIcon());
  // The program ends through the main window, not with the window that happens to be the last.
  QApplication::setQuitOnLastWindowClosed(false);

  const std::optional<lorvane::StartOrder> order =
      lorvane::ReadStartOrder(QApplication::arguments());
  if (!order) {
    return kWrongUsage;
  }
  lorvane::DesktopProgram program(lorvane::SystemClock(),
                                  [](int status) { QApplication::exit(status); });
  program.Start(*order);
  if (!program.ExitStatus()) {
    QApplication::exec();
  }
  return program.ExitStatus().value_or(0);
}
