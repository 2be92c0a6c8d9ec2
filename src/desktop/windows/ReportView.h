#pragma once

#include <QKeySequence>
#include <QWidget>
#include <functional>
#include <vector>

#include "desktop/binder/Binding.h"
#include "reports/ReportViewer.h"

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QProgressBar;
class QSpinBox;
class QToolButton;

namespace lorvane {

class ReportPages;

/// The widget of a report's viewer: a strip with the buttons that are switched on, and the pages.
class ReportView : public QWidget {
 public:
  ReportView();

  /// Shows what the viewer shows.
  void Show(const ReportViewer& viewer);
  /// How far long work has come; true when that is another percentage than before.
  bool ShowProgress(const ReportViewer& viewer);

  [[nodiscard]] ReportPages& Pages() { return *pages_; }

  // What the user does on the strip and with its keys.
  std::function<void(const char* button)> OnPress;
  std::function<void(int page)> OnGoTo;
  std::function<void(int page)> OnScrolledTo;
  std::function<void(int percent)> OnZoom;
  /// True when the text was found.
  std::function<bool(const QString& text)> OnSearch;

 private:
  /// A part of the strip that comes and goes as one.
  using Part = std::vector<QWidget*>;

  struct Tool {
    const char* name;
    const char* icon;
    QString tip;
    QKeySequence key;
  };
  QToolButton* AddTool(QHBoxLayout& strip, const Tool& tool, const std::function<void()>& action);
  /// A button that presses the viewer's button of that name.
  QToolButton* AddButton(QHBoxLayout& strip, const Tool& tool);
  QSpinBox* AddNumber(QHBoxLayout& strip, const QString& name, const QString& tip);
  void AddNavigation(QHBoxLayout& strip);
  void AddSearch(QHBoxLayout& strip);
  void AddZoom(QHBoxLayout& strip);
  static void ShowPart(const Part& part, bool shown);
  void Search();

  Part navigation_;
  Part search_;
  Part zooming_;
  QToolButton* refresh_ = nullptr;
  QToolButton* export_ = nullptr;
  QToolButton* print_ = nullptr;
  QSpinBox* page_ = nullptr;
  QLineEdit* wanted_ = nullptr;
  QLabel* notFound_ = nullptr;
  QSpinBox* zoom_ = nullptr;
  QProgressBar* progress_ = nullptr;
  ReportPages* pages_ = nullptr;
  int showing_ = -1;
};

/// Ties a report's viewer to its widget.
class ReportViewBinding : public Binding {
 public:
  ReportViewBinding(WindowBinder& window, ReportViewer& viewer, ReportView& view);

 protected:
  void ShowValue() override;

 private:
  ReportViewer& viewer_;
  ReportView& view_;
};

}  // namespace lorvane
