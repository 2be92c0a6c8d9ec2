#include "desktop/UserFolder.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace lorvane {

QDir UserFolder() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

}  // namespace lorvane
