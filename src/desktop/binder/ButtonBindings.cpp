#include "desktop/binder/ButtonBindings.h"

#include "basic/Text.h"
#include "desktop/binder/Mnemonics.h"
#include "desktop/binder/QtText.h"

namespace lorvane {

CommandBinding::CommandBinding(WindowBinder& window, Command& control, QAbstractButton& button)
    : Binding(window, control, button), control_(control), button_(button) {
  connect(&button, &QAbstractButton::clicked, this,
          [this] { Act([this] { control_.UserClick(); }); });
}

void CommandBinding::ShowValue() { SetCaptionOf(button_, control_.Caption()); }

CheckBinding::CheckBinding(WindowBinder& window, CheckBox& control, QAbstractButton& button)
    : Binding(window, control, button), control_(control), button_(button) {
  connect(&button, &QAbstractButton::clicked, this,
          [this] { Act([this] { control_.UserClick(); }); });
}

void CheckBinding::ShowValue() {
  SetCaptionOf(button_,
               control_.UseMnemonic ? control_.Caption() : Replace(control_.Caption(), "&", "&&"));
  button_.setChecked(control_.Checked());
}

OptionBinding::OptionBinding(WindowBinder& window, OptionButton& control, QAbstractButton& button)
    : Binding(window, control, button), control_(control), button_(button) {
  connect(&button, &QAbstractButton::clicked, this,
          [this] { Act([this] { control_.UserClick(); }); });
}

void OptionBinding::ShowValue() {
  SetCaptionOf(button_, control_.Caption());
  button_.setAutoExclusive(false);
  button_.setChecked(control_.Chosen());
  button_.setAutoExclusive(true);
}

LabelBinding::LabelBinding(WindowBinder& window, Label& control, QLabel& label)
    : Binding(window, control, label), control_(control), label_(label) {
  // What stands on file is no markup.
  label.setTextFormat(Qt::PlainText);
}

void LabelBinding::ShowValue() {
  if (label_.buddy() != nullptr) {
    SetCaptionOf(label_, control_.Caption());
  } else {
    label_.setText(ToQt(control_.Caption()));
  }
  QFont font = label_.font();
  font.setStrikeOut(control_.StrikeThrough());
  label_.setFont(font);
}

FrameBinding::FrameBinding(WindowBinder& window, Frame& control, QGroupBox& group)
    : Binding(window, control, group), control_(control), group_(group) {}

void FrameBinding::ShowValue() { group_.setTitle(ToQt(control_.Caption())); }

}  // namespace lorvane
