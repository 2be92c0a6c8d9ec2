#pragma once

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

#include "desktop/binder/Binding.h"
#include "screen/Buttons.h"

namespace lorvane {

/// A button, also one of a tool bar.
class CommandBinding : public Binding {
 public:
  CommandBinding(WindowBinder& window, Command& control, QAbstractButton& button);

 protected:
  void ShowValue() override;

 private:
  Command& control_;
  QAbstractButton& button_;
};

/// A check box.
class CheckBinding : public Binding {
 public:
  CheckBinding(WindowBinder& window, CheckBox& control, QAbstractButton& button);

 protected:
  void ShowValue() override;

 private:
  CheckBox& control_;
  QAbstractButton& button_;
};

/// One of several choices. None of them may be set, which the toolkit's own grouping doesn't know.
class OptionBinding : public Binding {
 public:
  OptionBinding(WindowBinder& window, OptionButton& control, QAbstractButton& button);

 protected:
  void ShowValue() override;

 private:
  OptionButton& control_;
  QAbstractButton& button_;
};

class LabelBinding : public Binding {
 public:
  LabelBinding(WindowBinder& window, Label& control, QLabel& label);

 protected:
  void ShowValue() override;

 private:
  Label& control_;
  QLabel& label_;
};

class FrameBinding : public Binding {
 public:
  FrameBinding(WindowBinder& window, Frame& control, QGroupBox& group);

 protected:
  void ShowValue() override;

 private:
  Frame& control_;
  QGroupBox& group_;
};

}  // namespace lorvane
