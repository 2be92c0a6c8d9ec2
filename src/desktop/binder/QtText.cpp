#include "desktop/binder/QtText.h"

namespace lorvane {

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
      .replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

std::string FromQt(const QString& text) { return text.toUtf8().toStdString(); }

}  // namespace lorvane
