#pragma once

#include <QComboBox>
#include <QListWidget>

#include "desktop/binder/Binding.h"
#include "screen/Lists.h"

namespace lorvane {

/// A list of which one entry is selected.
class ListBoxBinding : public Binding {
 public:
  ListBoxBinding(WindowBinder& window, ListBox& control, QListWidget& list);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void ShowValue() override;

 private:
  ListBox& control_;
  QListWidget& list_;
  int selectedAtPress_ = -1;
};

/// A drop-down list that tells when it is opened.
class DropDown : public QComboBox {
 public:
  using QComboBox::QComboBox;
  std::function<void()> OnOpening;
  void showPopup() override;
};

/// A drop-down list, with or without a field to type in.
class ComboBinding : public Binding {
 public:
  ComboBinding(WindowBinder& window, ComboBox& control, DropDown& combo);

 protected:
  void ShowValue() override;

 private:
  ComboBox& control_;
  DropDown& combo_;
};

}  // namespace lorvane
