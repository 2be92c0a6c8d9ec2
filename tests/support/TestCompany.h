#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "data/engine/Engine.h"
#include "screen/ScreenHost.h"
#include "screen/Session.h"
#include "support/FaultyFiles.h"
#include "support/ScriptedServices.h"
#include "support/TemporaryFolder.h"

namespace lorvane {

/// The screens of a test that opens none by name.
[[nodiscard]] const ScreenRegistry& NoScreens();

/// A company in a folder of its own, new from the template, open in a session with scripted
/// services. Everything goes at the end.
class TestCompany {
 public:
  /// `screens` outlives the company.
  explicit TestCompany(const ScreenRegistry& screens = NoScreens());

  /// The disk, which can be told to fail.
  [[nodiscard]] FaultyFiles& Disk() { return files_; }

  [[nodiscard]] const std::string& Folder() const { return folder_.Path(); }
  [[nodiscard]] std::string DataFile() const { return folder_.File("Data.mdb"); }
  [[nodiscard]] std::string ConfigFile() const { return folder_.File("LorvaneConfig.ini"); }

  [[nodiscard]] Session& GetSession() { return session_; }
  [[nodiscard]] ScriptedServices& Services() { return services_; }
  [[nodiscard]] ScreenContext Context() { return services_.Context(); }
  [[nodiscard]] EngineConnection& Connection() { return session_.gDataConn->Connection(); }

  /// Runs a statement that isn't a SELECT.
  void Execute(std::string_view statement) { Connection().Execute(statement); }
  /// The first column of a SELECT's first row as a listing shows it; empty when there is no row.
  [[nodiscard]] std::string First(std::string_view statement);
  /// A value of the configuration file; empty when it is missing.
  [[nodiscard]] std::string Ini(const std::string& section, const std::string& key);
  void SetIni(const std::string& section, const std::string& key, const std::string& value);

 private:
  TemporaryFolder folder_;
  FaultyFiles files_;
  std::unique_ptr<Engine> engine_;
  Session session_;
  ScriptedServices services_;
};

}  // namespace lorvane
