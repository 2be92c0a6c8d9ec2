#include "desktop/QtServices.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include "basic/RuntimeError.h"
#include "desktop/DesktopShell.h"
#include "desktop/Dialogs.h"
#include "desktop/HelpWindow.h"
#include "desktop/MainWindow.h"
#include "desktop/SampleCompany.h"
#include "desktop/SplashWindow.h"
#include "desktop/binder/QtText.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"

namespace lorvane {
namespace {

// While a box asks something, the pointer is the usual one, whatever goes on behind it.
class UsualPointer {
 public:
  UsualPointer() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
  UsualPointer(const UsualPointer&) = delete;
  UsualPointer& operator=(const UsualPointer&) = delete;
  ~UsualPointer() { QApplication::restoreOverrideCursor(); }
};

}  // namespace

QtServices::QtServices(Session& session, const ScreenRegistry& screens, ScreenGate& gate,
                       Clock clock)
    : ScreenHost(session, screens),
      session_(session),
      gate_(gate),
      clock_(std::move(clock)),
      painter_([this] { return Front(); }) {}

QtServices::~QtServices() {
  session_.status.OnChanged = nullptr;
  SetPointer(pointer::kDefault);
}

QWidget* QtServices::Front() const {
  QWidget* active = QApplication::activeModalWidget();
  if (active == nullptr) {
    active = main_.get();
  }
  return active == nullptr || !active->isVisible() ? nullptr : active;
}

int QtServices::MsgBox(const std::string& text, int flags, const std::string& title) {
  gate_.Flush();
  const UsualPointer usual;
  const int given = AskInBox(Front(), text, flags, title);
  TellClosed();
  gate_.ThrowIfEnded();
  return given;
}

std::string QtServices::InputBox(const std::string& prompt, const std::string& title,
                                 const std::string& proposal) {
  gate_.Flush();
  const UsualPointer usual;
  std::string given = AskForText(Front(), prompt, title, proposal);
  gate_.ThrowIfEnded();
  return given;
}

std::string QtServices::AskForFile(const FileDialog& dialog) {
  if (!dialog.newFile && !fileToOpen_.empty()) {
    return std::exchange(fileToOpen_, {});
  }
  gate_.Flush();
  const UsualPointer usual;
  std::string given = AskForFileName(Front(), dialog);
  gate_.ThrowIfEnded();
  return given;
}

void QtServices::OpenCompany(const std::string& file) {
  fileToOpen_ = file;
  FindScreen("frmMain")->Call("mnuFOpenCompany_Click");
  // Who chose the file elsewhere can't see that nothing came of it.
  if (const DataConnection& connection = *session_.gDataConn; !connection.IsOpen()) {
    MsgBox(connection.Errors().front().description, box::kExclamation, "Open Company");
  }
}

void QtServices::OpenSample() {
  try {
    OpenCompany(UserSampleCompany(session_));
  } catch (const RuntimeError& error) {
    ShowError(Context(), error, box::kExclamation);
  }
}

void QtServices::SetPointer(int shape) {
  const bool waiting = Pointer() == pointer::kHourglass;
  ScreenHost::SetPointer(shape);
  const bool waits = shape == pointer::kHourglass;
  if (waits && !waiting) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else if (!waits && waiting) {
    QApplication::restoreOverrideCursor();
  }
  if (waits) {
    // Nothing else runs until the work is done: what it says of itself is painted now.
    gate_.Flush();
    if (main_ != nullptr) {
      main_->PaintStatus();
    }
  }
}

void QtServices::Beep() { QApplication::beep(); }

void QtServices::ShowModal(Screen& screen) {
  // The window stands ready before the screen loads, so that it can be centred.
  open_[&screen] = windows_.Make(screen, gate_, Front());
  try {
    ScreenHost::ShowModal(screen);
  } catch (...) {
    open_.erase(&screen);
    throw;
  }
  open_.erase(&screen);
}

void QtServices::RunModal(Screen& screen) {
  ScreenDialog& window = *open_.at(&screen);
  QEventLoop loop;
  window.Binder().OnClosed = [&] { loop.quit(); };
  window.Present();
  gate_.RunLoop(loop);
  window.hide();
  TellClosed();
}

void QtServices::TellClosed() {
  if (main_ != nullptr) {
    main_->TellClosed();
  }
}

void QtServices::ShowModeless(Screen& screen) {
  if (auto* splash = dynamic_cast<frmSplash*>(&screen)) {
    splash_ = std::make_unique<SplashWindow>(*splash, gate_);
    splash_->show();
  } else if (auto* main = dynamic_cast<frmMain*>(&screen)) {
    main_ = std::make_unique<MainWindow>(*main, gate_, Context());
    main_->OnOpenSample = [this] { OpenSample(); };
    main_->show();
    if (OnMainWindow) {
      QTimer::singleShot(0, main_.get(), OnMainWindow);
    }
  } else if (const auto found = open_.find(&screen); found != open_.end()) {
    main_->BringToFront(*found->second);
  } else {
    open_[&screen] = windows_.Make(screen, gate_, nullptr);
    main_->Adopt(*open_[&screen]);
  }
}

void QtServices::HideModeless(Screen& screen) {
  // What closed the window may be a part of it: it goes when that is over.
  if (splash_ != nullptr && &splash_->Binder().Model() == &screen) {
    splash_.release()->deleteLater();
  } else if (const auto found = open_.find(&screen); found != open_.end()) {
    main_->Release(*found->second);
    found->second.release()->deleteLater();
    open_.erase(found);
    TellClosed();
  }
}

void QtServices::ArrangeWindows(WindowArrangement arrangement) {
  if (main_ != nullptr) {
    main_->Arrange(arrangement);
  }
}

ShellResult QtServices::RunShell(const ShellRequest& request) { return RunOnDesktop(request); }

bool QtServices::IsRunning(int process) const { return IsProcessRunning(process); }

void QtServices::ShowHelp() {
  if (help_ == nullptr) {
    const QString folder = ToQt(session_.programFolder) + QStringLiteral("/Resource/Manual");
    if (!HelpWindow::IsThere(folder)) {
      throw RuntimeError(error_number::kHelpNotAvailable);
    }
    help_ = std::make_unique<HelpWindow>(folder);
  }
  help_->show();
  help_->raise();
  help_->activateWindow();
}

}  // namespace lorvane
