#include "desktop/HelpWindow.h"

#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSplitter>
#include <QTextBlock>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include "desktop/HelpText.h"
#include "desktop/binder/Icons.h"

namespace lorvane {
namespace {

constexpr int kPageRole = Qt::UserRole;
constexpr int kHeadingRole = Qt::UserRole + 1;
const QLatin1String kContents("contents.md");

QString ReadText(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

bool HelpWindow::IsThere(const QString& folder) {
  return QFileInfo(folder + QLatin1Char('/') + kContents).isReadable();
}

HelpWindow::HelpWindow(const QString& folder)
    : folder_(folder),
      search_(new QLineEdit(this)),
      contents_(new QTreeWidget(this)),
      text_(new HelpText(folder, this)) {
  constexpr int kWidth = 140;
  constexpr int kHeight = 40;
  constexpr int kContentsWidth = 44;
  setObjectName(QStringLiteral("helpWindow"));
  setWindowTitle(tr("Lorvane Manual"));
  setWindowIcon(ProgramIcon());
  LoadPages(folder);

  search_->setObjectName(QStringLiteral("helpSearch"));
  search_->setPlaceholderText(tr("Search the manual"));
  search_->setAccessibleName(search_->placeholderText());
  search_->setClearButtonEnabled(true);
  search_->addAction(IconOf("search"), QLineEdit::LeadingPosition);
  contents_->setObjectName(QStringLiteral("helpContents"));
  contents_->setAccessibleName(tr("Contents"));
  contents_->setHeaderHidden(true);
  text_->setObjectName(QStringLiteral("helpText"));
  text_->setOpenExternalLinks(true);
  text_->setAccessibleName(tr("Page"));

  auto* left = new QWidget(this);
  auto* column = new QVBoxLayout(left);
  column->addWidget(search_);
  column->addWidget(contents_, 1);
  auto* splitter = new QSplitter(this);
  splitter->addWidget(left);
  splitter->addWidget(text_);
  splitter->setStretchFactor(1, 1);
  setCentralWidget(splitter);
  const int character = fontMetrics().averageCharWidth();
  resize(kWidth * character, kHeight * fontMetrics().lineSpacing());
  splitter->setSizes({kContentsWidth * character, (kWidth - kContentsWidth) * character});

  auto* find = new QAction(this);
  find->setShortcut(QKeySequence::Find);
  auto* close = new QAction(this);
  close->setShortcut(Qt::Key_Escape);
  addActions({find, close});
  connect(find, &QAction::triggered, search_, qOverload<>(&QWidget::setFocus));
  connect(close, &QAction::triggered, this, &QWidget::hide);
  connect(search_, &QLineEdit::textChanged, this,
          [this](const QString& wanted) { ShowContents(wanted.trimmed()); });
  connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (item != nullptr) {
      GoTo(item->data(0, kPageRole).toString(), item->data(0, kHeadingRole).toString());
    }
  });
  ShowContents({});
  text_->setSource(QUrl(kContents), QTextDocument::MarkdownResource);
}

// The pages in the order in which the contents lead to them.
void HelpWindow::LoadPages(const QString& folder) {
  static const QRegularExpression link(QStringLiteral("\\]\\(([\\w-]+\\.md)\\)"));
  static const QRegularExpression heading(QStringLiteral("^(#+) +(.+)$"),
                                          QRegularExpression::MultilineOption);
  QStringList names{kContents};
  for (const QRegularExpressionMatch& found :
       link.globalMatch(ReadText(folder + QLatin1Char('/') + kContents))) {
    if (!names.contains(found.captured(1))) {
      names.append(found.captured(1));
    }
  }
  for (const QString& name : names) {
    Page page{name, {}, ReadText(folder + QLatin1Char('/') + name), {}};
    for (const QRegularExpressionMatch& found : heading.globalMatch(page.text)) {
      const QString text = found.captured(2).remove(QLatin1Char('`'));
      if (found.captured(1).size() == 1) {
        page.title = page.title.isEmpty() ? text : page.title;
      } else if (found.captured(1).size() == 2) {
        page.headings.append(text);
      }
    }
    pages_.append(page);
  }
}

void HelpWindow::ShowContents(const QString& wanted) {
  contents_->clear();
  for (const Page& page : pages_) {
    if (!wanted.isEmpty() && !page.text.contains(wanted, Qt::CaseInsensitive)) {
      continue;
    }
    auto* top = new QTreeWidgetItem(contents_, {page.title});
    top->setData(0, kPageRole, page.name);
    for (const QString& heading : page.headings) {
      auto* inner = new QTreeWidgetItem(top, {heading});
      inner->setData(0, kPageRole, page.name);
      inner->setData(0, kHeadingRole, heading);
    }
    top->setExpanded(!wanted.isEmpty());
  }
}

void HelpWindow::GoTo(const QString& page, const QString& heading) {
  if (text_->source().fileName() != page) {
    text_->setSource(QUrl(page), QTextDocument::MarkdownResource);
  }
  // The words that were searched for, else the heading, come to the top.
  QTextCursor from(text_->document());
  for (QTextBlock block = text_->document()->begin(); !heading.isEmpty() && block.isValid();
       block = block.next()) {
    if (block.blockFormat().headingLevel() > 0 && block.text() == heading) {
      from = QTextCursor(block);
      break;
    }
  }
  const QString wanted = search_->text().trimmed();
  if (!wanted.isEmpty()) {
    const QTextCursor hit = text_->document()->find(wanted, from);
    from = hit.isNull() ? from : hit;
  }
  text_->moveCursor(QTextCursor::End);
  text_->setTextCursor(from);
  text_->ensureCursorVisible();
}

}  // namespace lorvane
