#include "desktop/binder/MenuBinding.h"

#include <QKeySequence>
#include <utility>

#include "desktop/binder/QtText.h"
#include "desktop/binder/ScreenGate.h"
#include "desktop/binder/WindowBinder.h"

namespace lorvane {

MenuBinding::MenuBinding(WindowBinder& window, MenuEntry& entry, QAction& action)
    : QObject(&action), entry_(entry), action_(action) {
  action.setObjectName(ToQt(entry.Name()));
  action.setShortcut(QKeySequence(ToQt(entry.Shortcut()), QKeySequence::PortableText));
  entry.OnPropertyChanged = [this] { changed_ = true; };
  connect(&action, &QAction::triggered, this, [this, &window] {
    changed_ = true;
    window.Gate().Run([this] { entry_.UserClick(); });
  });
}

void MenuBinding::Flush() {
  if (!std::exchange(changed_, false)) {
    return;
  }
  if (!entry_.IsSeparator()) {
    action_.setText(ToQt(entry_.Caption()));
  }
  action_.setEnabled(entry_.Enabled());
  action_.setVisible(entry_.Visible());
  action_.setToolTip(ToQt(entry_.Tip()));
  // The toolkit would tick an entry by itself: it has a tick only while it shows one.
  action_.setCheckable(entry_.Checked());
  action_.setChecked(entry_.Checked());
}

void MenuBinding::Detach() {
  entry_.OnPropertyChanged = nullptr;
  disconnect(&action_, nullptr, this, nullptr);
}

}  // namespace lorvane
