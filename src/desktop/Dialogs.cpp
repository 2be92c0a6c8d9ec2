#include "desktop/Dialogs.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>
#include <QVBoxLayout>

#include "desktop/UserFolder.h"
#include "desktop/binder/QtText.h"

namespace lorvane {
namespace {

QMessageBox::Icon IconFor(int flags) {
  switch (flags & ~box::kButtonMask) {
    case box::kCritical:
      return QMessageBox::Critical;
    case box::kQuestion:
      return QMessageBox::Question;
    case box::kExclamation:
      return QMessageBox::Warning;
    case box::kInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

QMessageBox::StandardButtons ButtonsFor(int flags) {
  switch (flags & box::kButtonMask) {
    case box::kOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case box::kYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case box::kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

// "Data files(*.mdb)|*.mdb" as the toolkit writes it, without regard to case.
QString FilterOf(const std::string& filter) {
  const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString description = parts.at(i);
    description.remove(QRegularExpression(QStringLiteral("\\s*\\([^)]*\\)\\s*$")));
    QStringList patterns = parts.at(i + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (qsizetype own = patterns.size(), k = 0; k < own; ++k) {
      if (patterns.at(k) != patterns.at(k).toUpper()) {
        patterns.append(patterns.at(k).toUpper());
      }
    }
    filters.append(QStringLiteral("%1 (%2)").arg(description, patterns.join(QLatin1Char(' '))));
  }
  return filters.join(QLatin1String(";;"));
}

// A name without an ending gets that of the kind chosen: "Text (*.txt)".
QString WithEnding(const QString& path, const QString& kind) {
  static const QRegularExpression kEnding(QStringLiteral("\\*(\\.\\w+)"));
  const QRegularExpressionMatch ending = kEnding.match(kind);
  return path.isEmpty() || !ending.hasMatch() || !QFileInfo(path).suffix().isEmpty()
             ? path
             : path + ending.captured(1);
}

QString StartOf(const std::string& start) {
  QString path = ToQt(start);
  const QFileInfo given(path);
  const QFileInfo folder(given.isDir() ? path : given.path());
  if (folder.isDir() && folder.isWritable()) {
    return path;
  }
  const QDir own = UserFolder();
  return given.isDir() ? own.path() : own.filePath(given.fileName());
}

}  // namespace

int AskInBox(QWidget* over, const std::string& text, int flags, const std::string& title) {
  QMessageBox shown(IconFor(flags), ToQt(title), ToQt(text), ButtonsFor(flags), over);
  shown.setTextFormat(Qt::PlainText);
  if ((flags & box::kButtonMask) == box::kYesNo) {
    shown.setEscapeButton(QMessageBox::No);
  }
  switch (shown.exec()) {
    case QMessageBox::Yes:
      return answer::kYes;
    case QMessageBox::No:
      return answer::kNo;
    case QMessageBox::Ok:
      return answer::kOk;
    default:
      return box::IsQuestion(flags) ? answer::kCancel : answer::kOk;
  }
}

std::string AskForText(QWidget* over, const std::string& prompt, const std::string& title,
                       const std::string& proposal) {
  constexpr int kWidth = 44;
  QDialog dialog(over);
  dialog.setWindowTitle(ToQt(title));
  auto* asked = new QLabel(ToQt(prompt), &dialog);
  asked->setTextFormat(Qt::PlainText);
  asked->setWordWrap(true);
  auto* edit = new QLineEdit(ToQt(proposal), &dialog);
  edit->setObjectName(QStringLiteral("txtInput"));
  edit->setAccessibleName(asked->text());
  edit->selectAll();
  edit->setMinimumWidth(kWidth * dialog.fontMetrics().averageCharWidth());
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(asked);
  layout->addWidget(edit);
  layout->addWidget(buttons);
  return dialog.exec() == QDialog::Accepted ? FromQt(edit->text()) : std::string();
}

std::string AskForFileName(QWidget* over, const FileDialog& dialog) {
  const QString title = ToQt(dialog.title);
  const QString start = StartOf(dialog.start);
  const QString filter = FilterOf(dialog.filter);
  if (!dialog.newFile) {
    return FromQt(QFileDialog::getOpenFileName(over, title, start, filter));
  }
  // Whether a file may be written over is the screen's own question.
  QString kind;
  const QString path = QFileDialog::getSaveFileName(over, title, start, filter, &kind,
                                                    QFileDialog::DontConfirmOverwrite);
  return FromQt(WithEnding(path, kind));
}

}  // namespace lorvane
