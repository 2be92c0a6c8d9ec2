#include "desktop/SampleCompany.h"

#include "desktop/UserFolder.h"
#include "desktop/binder/QtText.h"
#include "screen/Session.h"

namespace lorvane {

std::string UserSampleCompany(const Session& session) {
  const std::string folder =
      FromQt(UserFolder().filePath(QStringLiteral("Lorvane Sample Company")));
  std::string file = folder + "/Data.mdb";
  Files& files = session.files;
  if (files.Exists(file)) {
    return file;
  }
  // The data file comes last: whoever is killed before it begins anew.
  if (!files.Exists(folder)) {
    files.MakeFolder(folder);
  }
  for (const std::string name : {"/LorvaneConfig.ini", "/Data.mdb"}) {
    if (!files.Exists(folder + name)) {
      files.Copy(session.programFolder + "/Resource/Sample Data" + name, folder + name);
    }
  }
  return file;
}

}  // namespace lorvane
