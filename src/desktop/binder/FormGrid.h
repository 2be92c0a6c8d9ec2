#pragma once

#include <QGridLayout>
#include <initializer_list>

#include "desktop/binder/WindowBinder.h"

namespace lorvane {

/// Rows of fields under one another, each behind the label that names it: the control "lblCity" is
/// that of "txtCity". Fields are as wide as what they hold, within reason.
class FormGrid {
 public:
  explicit FormGrid(WindowBinder& binder);

  /// A row of fields. The first has its label in the first column; those behind it stand in the
  /// same row, with their labels where they have some.
  void Row(std::initializer_list<Control*> fields);
  /// A widget across the whole width.
  void Wide(QWidget* widget);
  /// Leaves the remaining height empty.
  void Fill();

  /// The layout, to be put into a widget.
  [[nodiscard]] QGridLayout* Layout() const { return grid_; }

 private:
  [[nodiscard]] QLabel* LabelOf(const Control& field, QWidget& widget) const;
  [[nodiscard]] QWidget* Sized(Control& field) const;

  WindowBinder& binder_;
  QGridLayout* grid_;
  int row_ = 0;
};

}  // namespace lorvane
