#include "desktop/StartPanel.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>

#include "desktop/binder/Icons.h"
#include "desktop/binder/Mnemonics.h"
#include "desktop/binder/QtText.h"
#include "desktop/binder/WindowBinder.h"
#include "screen/Menu.h"
#include "screen/Screen.h"

namespace lorvane {
namespace {

struct Wanted {
  const char* entry;
  const char* icon;
};

constexpr int kTitleCharacters = 40;

constexpr std::array kWanted{
    Wanted{"mnuFOpenCompany", "open-company"},
    Wanted{"mnuFNewCompany", "new-company"},
    Wanted{"mnuFEnterPayments", "payments"},
    Wanted{"mnuFEmployees", "employees"},
    Wanted{"mnuFSubContractors", "sub-contractor"},
    Wanted{"mnuFUserSettings", "company"},
    Wanted{"mnuRREmpRemitt", "reports"},
};

QToolButton* MakeButton(const char* icon, QAction& action, QWidget* parent) {
  constexpr double kLines = 2.2;
  auto* button = new QToolButton(parent);
  button->setObjectName(QStringLiteral("start_") + action.objectName());
  button->setText(WithoutMnemonic(action.text()));
  button->setAccessibleName(button->text());
  button->setToolTip(action.shortcut().toString(QKeySequence::NativeText));
  button->setIcon(IconOf(icon));
  const int side = static_cast<int>(kLines * button->fontMetrics().height());
  button->setIconSize({side, side});
  button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  button->setAutoRaise(true);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  QObject::connect(button, &QToolButton::clicked, &action, &QAction::trigger);
  return button;
}

}  // namespace

StartPanel::StartPanel(WindowBinder& binder, QWidget* parent) : QFrame(parent) {
  constexpr int kPictureLines = 5;
  setObjectName(QStringLiteral("startPanel"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  auto* picture = new QLabel(this);
  const int side = kPictureLines * fontMetrics().lineSpacing();
  picture->setPixmap(ProgramIcon().pixmap(QSize(side, side), devicePixelRatioF()));
  title_ = new QLabel(this);
  title_->setTextFormat(Qt::PlainText);
  title_->setWordWrap(true);
  QFont font = title_->font();
  constexpr double kLarger = 1.5;
  font.setPointSizeF(font.pointSizeF() * kLarger);
  title_->setFont(font);

  auto* heading = new QHBoxLayout;
  heading->addWidget(picture);
  heading->addSpacing(fontMetrics().averageCharWidth());
  heading->addWidget(title_, 1);
  rows_ = new QGridLayout;
  for (const Wanted& wanted : kWanted) {
    const auto* entry = dynamic_cast<const MenuEntry*>(binder.Model().Find(wanted.entry));
    QAction* action = entry == nullptr ? nullptr : binder.ActionOf(*entry);
    if (action != nullptr) {
      shortcuts_.push_back({entry, MakeButton(wanted.icon, *action, this)});
    }
  }
  const int margin = fontMetrics().lineSpacing();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(margin);
  layout->addLayout(heading);
  layout->addLayout(rows_);
}

void StartPanel::Refresh(const QString& title) {
  title_->setText(title);
  constexpr int kInARow = 4;
  int place = 0;
  for (const Shortcut& shortcut : shortcuts_) {
    shortcut.button->setVisible(shortcut.entry->Usable());
    if (shortcut.entry->Usable()) {
      rows_->addWidget(shortcut.button, place / kInARow, place % kInARow);
      ++place;
    }
  }
  // A long name is shown in two lines rather than in a broad panel.
  title_->setMinimumWidth(std::min(title_->fontMetrics().horizontalAdvance(title),
                                   kTitleCharacters * title_->fontMetrics().averageCharWidth()));
  adjustSize();
}

}  // namespace lorvane
