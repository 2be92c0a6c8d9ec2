#include "desktop/binder/QtText.h"

#include <QList>

namespace lorvane {

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
      .replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

std::string FromQt(const QString& text) { return text.toUtf8().toStdString(); }

int UnitsBefore(const QString& text, std::size_t characters) {
  qsizetype units = 0;
  for (std::size_t passed = 0; passed < characters && units < text.size(); ++passed) {
    units += text.at(units).isHighSurrogate() && units + 1 < text.size() ? 2 : 1;
  }
  return static_cast<int>(units);
}

std::size_t CharactersBefore(const QString& text, qsizetype units) {
  return static_cast<std::size_t>(QStringView(text).left(units).toUcs4().size());
}

}  // namespace lorvane
