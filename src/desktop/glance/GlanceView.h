#pragma once

#include <QWidget>
#include <functional>

#include "glance/YearAtAGlance.h"

class QComboBox;
class QImage;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QTreeWidget;

namespace lorvane {

class YearChart;

/// The year of the open company: its chart, its totals, and what wants to be done.
class GlanceView : public QWidget {
 public:
  explicit GlanceView(QWidget* parent);

  /// Asked for the window that an entry of the list is about, by the menu entry that opens it.
  std::function<void(const char* menuEntry)> OnOpen;
  /// Asked to keep the chart, with a name for the file.
  std::function<void(const QImage& picture, const QString& name)> OnSave;

  void Show(const YearAtAGlance& glance);
  /// Tells why there is nothing to be seen.
  void ShowFailure(const QString& reason);

 private:
  [[nodiscard]] QWidget* MakeChartSide();
  [[nodiscard]] QWidget* MakeTableSide();
  void ShowChart();
  void ShowTotals();
  void ShowWork();
  void AddWork(const char* icon, const char* menuEntry, const QString& text);

  YearAtAGlance glance_;
  QLabel* failure_;
  QWidget* content_;
  YearChart* chart_ = nullptr;
  QLabel* words_ = nullptr;
  QComboBox* measure_ = nullptr;
  QTreeWidget* totals_ = nullptr;
  QListWidget* work_ = nullptr;
};

}  // namespace lorvane
