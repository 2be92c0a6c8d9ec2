// Whatever a screen script holds, it runs to its end or is told where it fails; the program never
// crashes, and the company's data file is in order afterwards. The script begins with a company
// open. Files can be made and removed in the company's folder alone.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>

#include "basic/RuntimeError.h"
#include "cli/ScriptErrors.h"
#include "cli/ScriptRunner.h"
#include "data/Files.h"
#include "shell/modLorvane.h"
#include "support/ScriptedServices.h"
#include "support/TemporaryFolder.h"

namespace lorvane {
namespace {

constexpr std::size_t kLongestScript = 4000;

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// Data files are reached past the fence. A slash stands in a date alone: what is named lies in the
// company's folder.
bool NamesAFolder(std::string_view script) {
  for (std::size_t at = script.find('/'); at != std::string_view::npos;
       at = script.find('/', at + 1)) {
    if (at == 0 || at + 1 == script.size() || !IsDigit(script[at - 1]) ||
        !IsDigit(script[at + 1])) {
      return true;
    }
  }
  return false;
}

class FencedFiles : public DiskFiles {
 public:
  explicit FencedFiles(std::string folder) : folder_(std::move(folder)) {}

  void Write(const std::string& path, std::string_view content) override {
    DiskFiles::Write(Inside(path), content);
  }
  void WriteNew(const std::string& path,
                const std::function<void(const TakeBytes& take)>& source) override {
    DiskFiles::WriteNew(Inside(path), source);
  }
  void MakeFolder(const std::string& path) override { DiskFiles::MakeFolder(Inside(path)); }
  void Replace(const std::string& from, const std::string& to) override {
    DiskFiles::Replace(Inside(from), Inside(to));
  }
  void Remove(const std::string& path) override { DiskFiles::Remove(Inside(path)); }
  void Rename(const std::string& from, const std::string& to) override {
    DiskFiles::Rename(Inside(from), Inside(to));
  }
  void RemoveFolder(const std::string& path) override { DiskFiles::RemoveFolder(Inside(path)); }

 private:
  const std::string& Inside(const std::string& path) const {
    if (!path.starts_with(folder_) || path.find("..") != std::string::npos) {
      throw RuntimeError(error_number::kPermissionDenied);
    }
    return path;
  }

  std::string folder_;
};

class Harness {
 public:
  Harness() : engine_(MakeFileEngine()), sample_(ProgramFolder() + "/Resource/Sample Data") {
    // While it is open the key of the sample company is derived once.
    CopyCompany(kept_);
    held_ = engine_->Open(kept_.File("Data.mdb"), kDataFilePassword);
  }

  void Try(std::string_view input) {
    const TemporaryFolder folder;
    CopyCompany(folder);
    std::filesystem::current_path(folder.Path());
    Run(folder.Path(), "open \"${DIR}/Data.mdb\"\n" + std::string(input));
    const auto connection = engine_->Open(folder.File("Data.mdb"), kDataFilePassword);
    if (!connection->CheckIntegrity().empty()) {
      std::abort();
    }
  }

 private:
  void CopyCompany(const TemporaryFolder& folder) const {
    for (const char* name : {"Data.mdb", "LorvaneConfig.ini"}) {
      std::filesystem::copy_file(sample_ + "/" + name, folder.File(name));
    }
  }

  void Run(const std::string& folder, const std::string& script) {
    FencedFiles files(folder);
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    const Clock clock = FixedClock(ScriptedServices::kNow);
    ScriptStage stage;
    stage.makeSession = [&] { return Main({engine_.get(), ProgramFolder(), clock}, files); };
    stage.screens = AllScreens();
    stage.endOnError = [](ScreenContext context, const RuntimeError& error) {
      EndOnUnhandledError(context, error);
    };
    ScriptRunner runner(std::move(stage), {in, out, err}, clock);
    if (!runner.Run("script", script, {{"DIR", folder}}) && out.str().empty()) {
      std::abort();
    }
  }

  std::unique_ptr<Engine> engine_;
  std::string sample_;
  TemporaryFolder kept_;
  std::unique_ptr<EngineConnection> held_;
};

}  // namespace
}  // namespace lorvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static lorvane::Harness harness;
  const std::string_view script(reinterpret_cast<const char*>(data), size);
  if (size <= lorvane::kLongestScript && !lorvane::NamesAFolder(script)) {
    harness.Try(script);
  }
  return 0;
}
