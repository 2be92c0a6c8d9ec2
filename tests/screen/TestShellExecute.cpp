#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <tuple>
#include <vector>

#include "basic/RuntimeError.h"
#include "screen/cShellExecute.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

class ShellServices : public ScriptedServices {
 public:
  using ScriptedServices::ScriptedServices;

  ShellResult RunShell(const ShellRequest& request) override {
    if (!result) {
      throw RuntimeError(error_number::kFileNotFound);
    }
    asked = request;
    return *result;
  }
  [[nodiscard]] bool IsRunning(int process) const override { return process == 77; }

  std::optional<ShellResult> result = ShellResult{42, 77};
  ShellRequest asked;
};

class ShellExecute : public testing::Test {
 protected:
  TestCompany company_;
  ShellServices services_{company_.GetSession(), NoScreens()};
  cShellExecute shell_{services_};
};

TEST_F(ShellExecute, EachOperationHasItsVerb) {
  struct Case {
    std::function<bool()> call;
    ShellRequest asked;
    bool keepsProcess;
  };
  const std::vector<Case> cases{
      {[&] { return shell_.Explore("/books", 1); }, {"explore", "/books", "", "", 1}, false},
      {[&] { return shell_.LaunchDocument("a.pdf", "-x", 3); },
       {"Open", "a.pdf", "-x", "", 3},
       true},
      {[&] { return shell_.LaunchEmail("ann@harbour.example", 1); },
       {"", "mailto:ann@harbour.example", "", "", 1},
       false},
      {[&] { return shell_.LaunchFolder("/books", 5); }, {"open", "/books", "", "", 5}, false},
      {[&] { return shell_.LaunchProgram("calc.exe", "/p", "/f", 1); },
       {"Open", "calc.exe", "/p", "/f", 1},
       true},
      {[&] { return shell_.LaunchURL("https://harbour.example", 1); },
       {"", "https://harbour.example", "", "", 1},
       false},
      {[&] { return shell_.PrintDocument("a.pdf", 0); }, {"print", "a.pdf", "", "", 0}, false},
  };
  for (const Case& one : cases) {
    EXPECT_TRUE(one.call()) << one.asked.file;
    const ShellRequest& got = services_.asked;
    EXPECT_EQ(std::tie(got.verb, got.file, got.parameters, got.folder, got.showMode),
              std::tie(one.asked.verb, one.asked.file, one.asked.parameters, one.asked.folder,
                       one.asked.showMode));
    EXPECT_EQ(shell_.StillExecuting(), one.keepsProcess) << one.asked.file;
    EXPECT_EQ(shell_.ErrorCode(), 0);
  }
}

TEST_F(ShellExecute, ARefusalLeavesItsCode) {
  services_.result = ShellResult{2, 77};
  EXPECT_FALSE(shell_.LaunchDocument("gone.pdf", "", 1));
  EXPECT_EQ(shell_.ErrorCode(), 2);
  services_.result = std::nullopt;
  EXPECT_FALSE(shell_.LaunchURL("x", 1));
  EXPECT_EQ(shell_.ErrorCode(), 0);
  EXPECT_FALSE(shell_.StillExecuting());
}

}  // namespace
}  // namespace lorvane
