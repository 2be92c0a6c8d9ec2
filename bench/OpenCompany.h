#pragma once

#include <memory>
#include <string>

#include "cli/CommandLineServices.h"
#include "data/Files.h"
#include "data/engine/Engine.h"
#include "screen/Session.h"

namespace lorvane {

/// A company open in a session whose services keep silent and answer every question with Yes.
class OpenCompany {
 public:
  /// Raises std::runtime_error when the file can't be opened.
  explicit OpenCompany(const std::string& dataFile);
  /// Makes it from the template first.
  [[nodiscard]] static OpenCompany New(const std::string& dataFile);

  [[nodiscard]] Session& GetSession() { return *session_; }
  [[nodiscard]] CommandLineServices& Services() { return *services_; }
  [[nodiscard]] ScreenContext Context() { return services_->Context(); }

 private:
  OpenCompany();
  void Open(const std::string& dataFile);

  std::unique_ptr<Engine> engine_;
  std::unique_ptr<Files> files_;
  std::unique_ptr<ScreenRegistry> screens_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<CommandLineServices> services_;
};

}  // namespace lorvane
