// The window of employees opened on 10,000 names and painted, and the bare engine's names put into
// a list of the toolkit.

#include <QApplication>
#include <QListWidget>
#include <stdexcept>

#include "BareFile.h"
#include "CompanyFiles.h"
#include "Comparison.h"
#include "desktop/DesktopProgram.h"
#include "desktop/windows/EmployeesWindow.h"

namespace lorvane {
namespace {

constexpr int kEmployees = 10000;

double Ours(const CompanyFiles& files) {
  DesktopProgram program(SystemClock(), [](int) {});
  DataConnection& connection = *program.GetSession().gDataConn;
  connection.DataSource = files.FreshCopy();
  connection.OpenOrRaise();
  frmEmployees screen(program.Context());
  EmployeesWindow window(screen, program.Gate(), nullptr);
  const double seconds = SecondsOf([&] {
    window.Complete();
    program.Gate().Run([&] { screen.Load(); });
    window.Present();
    QApplication::processEvents();
  });
  if (screen.list.Count() != kEmployees) {
    throw std::runtime_error("the list wasn't filled");
  }
  return seconds;
}

double Bare(const CompanyFiles& files) {
  BareFile file(files.FreshCopy());
  QListWidget list;
  list.setUniformItemSizes(true);
  list.show();
  return SecondsOf([&] {
    file.Read(
        "SELECT EmployeeId, LastName, FirstName, Initial FROM tblEmployees ORDER BY LastName, "
        "FirstName",
        [&](sqlite3_stmt* row) {
          list.addItem(
              QString::fromStdString(BareFile::TextAt(row, 1) + ", " + BareFile::TextAt(row, 2)));
        });
    list.setCurrentRow(0);
    QApplication::processEvents();
  });
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  using namespace lorvane;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const CompanyFiles files(kEmployees, 0);
  return RunComparison(argc, argv,
                       {"opening a list of 10,000 employees", [&] { return Ours(files); },
                        [&] { return Bare(files); }});
}
