#include "desktop/StartOrder.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <iostream>

#include "desktop/binder/QtText.h"

namespace lorvane {

std::optional<StartOrder> ReadStartOrder(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Lorvane: book-keeping for workers' compensation assessments"));
  const QCommandLineOption help(QStringLiteral("help"), QStringLiteral("Print this help and exit"));
  const QCommandLineOption version(QStringLiteral("version"),
                                   QStringLiteral("Print the version and exit"));
  const QCommandLineOption newCompany(QStringLiteral("new-company"),
                                      QStringLiteral("Begin a new company"));
  const QCommandLineOption manual(QStringLiteral("manual"), QStringLiteral("Open the manual"));
  parser.addOptions({help, version, newCompany, manual});
  parser.addPositionalArgument(QStringLiteral("FILE"),
                               QStringLiteral("A company's data file to open"),
                               QStringLiteral("[FILE]"));
  const bool understood = parser.parse(arguments);
  const QStringList files = parser.positionalArguments();
  if (!understood || files.size() > 1) {
    std::cerr << "lorvane: "
              << (understood ? "one FILE can be opened at a time." : FromQt(parser.errorText()))
              << std::endl;
    return std::nullopt;
  }
  if (parser.isSet(help)) {
    parser.showHelp();
  }
  if (parser.isSet(version)) {
    parser.showVersion();
  }
  StartOrder order;
  order.newCompany = parser.isSet(newCompany);
  order.manual = parser.isSet(manual);
  if (!files.isEmpty() && !files.front().isEmpty()) {
    order.company = FromQt(QFileInfo(files.front()).absoluteFilePath());
  }
  return order;
}

}  // namespace lorvane
