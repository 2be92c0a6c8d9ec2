// 10,000 rows put into the payment window's list, painted, sorted by a column and painted again,
// and the same with the toolkit's own item model.

#include <QApplication>
#include <QStandardItemModel>
#include <QTreeView>

#include "Comparison.h"
#include "desktop/DesktopProgram.h"
#include "desktop/windows/PaymentListWindow.h"

namespace lorvane {
namespace {

constexpr int kRows = 10000;
constexpr int kPlaces = 6;

std::vector<ListView::Row> Rows() {
  std::vector<ListView::Row> rows(kRows);
  for (int row = 0; row < kRows; ++row) {
    for (int place = 0; place < kPlaces; ++place) {
      rows[static_cast<std::size_t>(row)].texts.push_back(
          std::to_string((row * 7919 + place * 104729) % 1000003));
    }
  }
  return rows;
}

double Ours() {
  DesktopProgram program(SystemClock(), [](int) {});
  frmSelectAssessment screen(program.Context());
  PaymentListWindow window(screen, program.Gate(), nullptr);
  window.Complete();
  window.show();
  screen.lvwPayments.SetColumns(EmployeeList(*program.GetSession().gDataConn).Columns());
  std::vector<ListView::Row> rows = Rows();
  return SecondsOf([&] {
    program.Gate().Run([&] { screen.lvwPayments.AddRows(std::move(rows)); });
    QApplication::processEvents();
    program.Gate().Run([&] { screen.lvwPayments.UserColumnClick(2); });
    QApplication::processEvents();
  });
}

double Bare() {
  QStandardItemModel model(0, kPlaces);
  QTreeView view;
  view.setUniformRowHeights(true);
  view.setModel(&model);
  view.resize(1000, 700);
  view.show();
  const std::vector<ListView::Row> rows = Rows();
  return SecondsOf([&] {
    for (const ListView::Row& row : rows) {
      QList<QStandardItem*> items;
      for (const std::string& text : row.texts) {
        items.append(new QStandardItem(QString::fromStdString(text)));
      }
      model.appendRow(items);
    }
    QApplication::processEvents();
    model.sort(2);
    QApplication::processEvents();
  });
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return lorvane::RunComparison(
      argc, argv, {"a list of 10,000 rows shown and sorted", lorvane::Ours, lorvane::Bare});
}
