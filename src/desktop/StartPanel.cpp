#include "desktop/StartPanel.h"

#include <QAction>
#include <QBuffer>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "desktop/binder/Icons.h"
#include "desktop/binder/Mnemonics.h"
#include "desktop/binder/QtText.h"
#include "desktop/binder/ScreenGate.h"
#include "desktop/binder/WindowBinder.h"
#include "desktop/glance/GlanceView.h"
#include "screen/Menu.h"
#include "screen/Screen.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"

namespace lorvane {
namespace {

struct Wanted {
  const char* entry;
  /// Null for the entry's own words.
  const char* words;
  const char* icon;
  bool withCompany;
  bool withoutCompany;
};

constexpr int kTitleCharacters = 40;

// The sample company stands behind the first two.
constexpr std::array kWanted{
    Wanted{"mnuFNewCompany", nullptr, "new-company", false, true},
    Wanted{"mnuFOpenCompany", nullptr, "open-company", true, true},
    Wanted{"mnuFEnterPayments", nullptr, "payments", true, false},
    Wanted{"mnuFEmployees", nullptr, "employees", true, false},
    Wanted{"mnuFSubContractors", nullptr, "sub-contractor", true, false},
    Wanted{"mnuFUserSettings", nullptr, "company", true, false},
    Wanted{"mnuRREmpRemitt", nullptr, "reports", true, false},
    Wanted{"mnuHContents", "Help", "help", false, true},
};

// Works with any company that is open, an archive among them.
constexpr const char* kOpenCompanyEntry = "mnuRREmpRemitt";

QToolButton* MakeButton(const char* name, const char* icon, const QString& text, QWidget* parent) {
  constexpr double kLines = 2.2;
  auto* button = new QToolButton(parent);
  button->setObjectName(QLatin1String("start_") + QLatin1String(name));
  button->setText(text);
  button->setAccessibleName(text);
  button->setIcon(IconOf(icon));
  const int side = static_cast<int>(kLines * button->fontMetrics().height());
  button->setIconSize({side, side});
  button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  return button;
}

}  // namespace

StartPanel::StartPanel(WindowBinder& binder, ScreenContext context, QWidget* parent)
    : QFrame(parent), binder_(binder), context_(context) {
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
  MakeButtons();
  MakeView();
  const int margin = fontMetrics().lineSpacing();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(margin / 2);
  layout->addLayout(heading);
  layout->addLayout(rows_);
  layout->addWidget(scroll_, 1);
}

void StartPanel::MakeButtons() {
  for (const Wanted& wanted : kWanted) {
    const MenuEntry* entry = EntryOf(wanted.entry);
    QAction* action = entry == nullptr ? nullptr : binder_.ActionOf(*entry);
    if (action == nullptr) {
      continue;
    }
    QToolButton* button = MakeButton(
        wanted.entry, wanted.icon,
        wanted.words == nullptr ? WithoutMnemonic(action->text()) : tr(wanted.words), this);
    button->setToolTip(action->shortcut().toString(QKeySequence::NativeText));
    connect(button, &QToolButton::clicked, action, &QAction::trigger);
    AddButton(entry, button, wanted.withCompany, wanted.withoutCompany);
    if (std::string_view(wanted.entry) == "mnuFOpenCompany") {
      QToolButton* sample = MakeButton("sample", "folder", tr("Open the Sample"), this);
      sample->setToolTip(tr("A copy of the sample company, to try everything on"));
      connect(sample, &QToolButton::clicked, this, [this] {
        binder_.Gate().Run([this] {
          if (OnOpenSample) {
            OnOpenSample();
          }
        });
      });
      AddButton(nullptr, sample, false, true);
    }
  }
}

void StartPanel::MakeView() {
  glance_ = new GlanceView(this);
  glance_->OnOpen = [this](const char* name) { OpenWindow(name); };
  glance_->OnSave = [this](const QImage& picture, const QString& name) {
    binder_.Gate().Run([&] { SavePicture(picture, name); });
  };
  scroll_ = new QScrollArea(this);
  scroll_->setObjectName(QStringLiteral("glanceScroll"));
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidgetResizable(true);
  scroll_->setWidget(glance_);
  scroll_->hide();
}

void StartPanel::AddButton(const MenuEntry* entry, QToolButton* button, bool withCompany,
                           bool withoutCompany) {
  shortcuts_.push_back({entry, button, withCompany, withoutCompany});
}

const MenuEntry* StartPanel::EntryOf(const char* name) const {
  return dynamic_cast<const MenuEntry*>(binder_.Model().Find(name));
}

bool StartPanel::HasCompany() const {
  const MenuEntry* entry = EntryOf(kOpenCompanyEntry);
  return entry != nullptr && entry->Usable() && context_.session.gDataConn->IsOpen();
}

void StartPanel::Refresh(const QString& title) {
  constexpr int kInARow = 6;
  const bool hasCompany = HasCompany();
  // A new company has no name yet: the title of the main window says so in brackets.
  const QString name = title.startsWith(QLatin1Char('<')) ? tr("New company") : title;
  const QString heading = hasCompany ? name : tr("Welcome to Lorvane");
  title_->setText(heading);
  int place = 0;
  for (const Shortcut& shortcut : shortcuts_) {
    const bool wanted = (hasCompany ? shortcut.withCompany : shortcut.withoutCompany) &&
                        (shortcut.entry == nullptr || shortcut.entry->Usable());
    shortcut.button->setVisible(wanted);
    if (wanted) {
      rows_->addWidget(shortcut.button, place / kInARow, place % kInARow);
      ++place;
    }
  }
  // A long name is shown in two lines rather than in a broad panel.
  title_->setMinimumWidth(std::min(title_->fontMetrics().horizontalAdvance(heading),
                                   kTitleCharacters * title_->fontMetrics().averageCharWidth()));
  scroll_->setVisible(hasCompany);
  updateGeometry();
}

void StartPanel::RefreshYear() {
  try {
    glance_->Show(ReadYearAtAGlance(context_.session, context_.services.Now()));
  } catch (const RuntimeError& error) {
    glance_->ShowFailure(ToQt(error.Description()));
  }
}

QSize StartPanel::sizeHint() const {
  QSize size = QFrame::sizeHint();
  if (scroll_->isVisibleTo(this)) {
    // A scroll area asks for a few lines alone.
    const QSize content = glance_->sizeHint();
    const QSize asked = scroll_->sizeHint();
    size.rheight() += std::max(0, content.height() - asked.height());
    const QMargins margins = layout()->contentsMargins();
    size.setWidth(std::max(size.width(), content.width() + margins.left() + margins.right() +
                                             scroll_->verticalScrollBar()->sizeHint().width()));
  }
  return size;
}

void StartPanel::OpenWindow(const char* name) const {
  const MenuEntry* entry = EntryOf(name);
  QAction* action = entry == nullptr || !entry->Usable() ? nullptr : binder_.ActionOf(*entry);
  if (action != nullptr) {
    action->trigger();
  }
}

void StartPanel::SavePicture(const QImage& picture, const QString& name) const {
  const std::string file = context_.services.AskForFile(
      {"Save Chart", "Pictures(*.png)|*.png",
       GetPathPart(context_.session.gConfigFile) + FromQt(name), true});
  if (file.empty()) {
    return;
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  try {
    context_.session.files.Write(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
  } catch (const RuntimeError& error) {
    ShowError(context_, error, box::kExclamation);
  }
}

}  // namespace lorvane
