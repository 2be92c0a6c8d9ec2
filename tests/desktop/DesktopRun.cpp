#include "DesktopRun.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <cstdlib>
#include <filesystem>

#include "basic/RuntimeError.h"
#include "data/engine/Value.h"
#include "desktop/binder/Mnemonics.h"
#include "shell/modLorvane.h"

void PrintTo(const QString& text, std::ostream* out) { *out << text.toStdString(); }

namespace lorvane {
namespace {

constexpr DateTime kNow{2026, 11, 23, 10, 0, 0};
constexpr int kTick = 5;
// A window that nobody attends to for so many ticks fails the test.
constexpr int kPatience = 400;
constexpr int kMostNeglected = 5;

}  // namespace

DesktopRun::DesktopRun(const std::function<StartOrder(DesktopRun&)>& prepare)
    : clockwork_(std::make_unique<QObject>()) {
  namespace fs = std::filesystem;
  fs::copy(ProgramFolder() + "/Resource/Sample Data", folder_.Path(), fs::copy_options::recursive);
  program_ = std::make_unique<DesktopProgram>(FixedClock(kNow), [](int) {});
  const StartOrder order = prepare(*this);
  Tick();
  program_->StartWithMainWindow(order);
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&Main()));
}

DesktopRun::~DesktopRun() {
  clockwork_.reset();
  for (const Step& left : steps_) {
    ADD_FAILURE() << left.window.toStdString() << " was expected and didn't open";
  }
}

QWidget& DesktopRun::Main() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QLatin1String("frmMain")) {
      return *window;
    }
  }
  throw std::runtime_error("there is no main window");
}

void DesktopRun::SetIni(const std::string& section, const std::string& key,
                        const std::string& value) {
  DiskFiles files;
  cINI(files, folder_.File("LorvaneConfig.ini")).KeySave(value, section, key);
}

std::string DesktopRun::First(const std::string& statement) {
  const ResultTable table = program_->GetSession().gDataConn->Connection().Query(statement);
  return table.rows.empty() ? std::string() : TextOf(table.rows.front().front());
}

void DesktopRun::In(const QString& window, std::function<void(QWidget&)> work) {
  steps_.push_back({window, std::move(work)});
}

void DesktopRun::Answer(const QString& title, const QString& text, const QString& button) {
  In(title, [text, button](QWidget& window) {
    const auto& box = dynamic_cast<QMessageBox&>(window);
    EXPECT_TRUE(box.text().startsWith(text)) << box.text().toStdString();
    for (QAbstractButton* offered : box.buttons()) {
      if (WithoutMnemonic(offered->text()) == button) {
        offered->click();
        return;
      }
    }
    ADD_FAILURE() << "the box has no button " << button.toStdString();
    window.close();
  });
}

void DesktopRun::Tick() {
  // The next one is set first: what is done now may wait in a window's own loop.
  QTimer::singleShot(kTick, clockwork_.get(), [this] { Tick(); });
  QWidget* front = QApplication::activeModalWidget();
  if (front == nullptr || !front->isVisible()) {
    idle_ = 0;
    return;
  }
  if (!steps_.empty() && (front->objectName() == steps_.front().window ||
                          front->windowTitle() == steps_.front().window)) {
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    idle_ = 0;
    step.work(*front);
  } else if (++idle_ == kPatience) {
    const auto* box = qobject_cast<const QMessageBox*>(front);
    ADD_FAILURE() << "nobody attends to " << front->windowTitle().toStdString() << " "
                  << (box == nullptr ? std::string() : box->text().toStdString());
    idle_ = 0;
    // Each closing may ask again what nobody answers.
    if (++neglected_ == kMostNeglected) {
      std::abort();
    }
    front->close();
  }
}

void DesktopRun::Choose(const char* entry) { Part<QAction>(Main(), entry).trigger(); }

void DesktopRun::ChooseFile(const QString& dialog, const std::string& path) {
  In(dialog, [path](QWidget& window) {
    Part<QLineEdit>(window, "fileNameEdit").setText(QString::fromStdString(path));
    QMetaObject::invokeMethod(&window, "accept");
  });
}

void DesktopRun::OpenCompany() {
  ChooseFile(QStringLiteral("Data Location"), DataFile());
  Choose("mnuFOpenCompany");
}

QWidget& Focused(const QWidget& window) {
  QWidget* focus = window.focusWidget();
  if (focus == nullptr) {
    throw std::runtime_error("nothing has the focus");
  }
  return *focus;
}

}  // namespace lorvane
