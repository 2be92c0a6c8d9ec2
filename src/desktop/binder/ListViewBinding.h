#pragma once

#include <QTreeView>

#include "desktop/binder/Binding.h"
#include "desktop/binder/ListViewModel.h"

class QHelpEvent;

namespace lorvane {

/// A table of rows of which several may be selected.
class ListViewBinding : public Binding {
 public:
  ListViewBinding(WindowBinder& window, ListView& control, QTreeView& view);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void ShowValue() override;

 private:
  bool TellCutText(const QHelpEvent& event);
  void LayOutColumns();
  void FitColumns();
  void ShowSelection();
  void TellSelection();

  ListView& control_;
  QTreeView& view_;
  ListViewModel* model_;
  /// The columns' own widths in pixels; 0 for a hidden one.
  std::vector<int> widths_;
  int shownRow_ = -1;
};

}  // namespace lorvane
