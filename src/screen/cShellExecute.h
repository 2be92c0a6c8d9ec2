#pragma once

#include <string>

#include "screen/ScreenServices.h"

namespace lorvane {

/// Hands documents, folders, addresses and programs to the platform. Every operation is true when
/// the shell took it; else ErrorCode() keeps the shell's code, 0 when there is none. No exception
/// leaves.
class cShellExecute {
 public:
  explicit cShellExecute(ScreenServices& services) : services_(&services) {}

  [[nodiscard]] int ErrorCode() const { return errorCode_; }
  /// Whether the program or document last launched still runs.
  [[nodiscard]] bool StillExecuting() const;

  bool Explore(const std::string& folder, int showMode);
  bool LaunchDocument(const std::string& file, const std::string& parameters, int showMode);
  bool LaunchEmail(const std::string& address, int showMode);
  bool LaunchFolder(const std::string& folder, int showMode);
  bool LaunchProgram(const std::string& program, const std::string& parameters,
                     const std::string& folder, int showMode);
  bool LaunchURL(const std::string& address, int showMode);
  bool PrintDocument(const std::string& file, int showMode);

 private:
  bool Run(const ShellRequest& request, bool keepProcess);

  ScreenServices* services_;
  int errorCode_ = 0;
  int process_ = 0;
};

}  // namespace lorvane
