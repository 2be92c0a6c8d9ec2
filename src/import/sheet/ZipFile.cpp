#include "import/sheet/ZipFile.h"

#include <zip.h>

#include <array>
#include <memory>

#include "import/sheet/SheetFailure.h"

namespace lorvane {
namespace {

constexpr const char* kDamaged = "is damaged or incomplete.";

struct CloseEntry {
  void operator()(zip_file_t* entry) const { zip_fclose(entry); }
};

}  // namespace

ZipFile::ZipFile(const std::string& path)
    : path_(path), archive_(zip_open(path.c_str(), ZIP_RDONLY, nullptr)) {
  if (archive_ == nullptr) {
    RefuseSheet(path, kDamaged);
  }
}

ZipFile::~ZipFile() { zip_discard(archive_); }

bool ZipFile::Has(const std::string& entry) const {
  return zip_name_locate(archive_, entry.c_str(), 0) >= 0;
}

void ZipFile::Read(const std::string& entry, const std::function<void(std::string_view)>& take) {
  const std::unique_ptr<zip_file_t, CloseEntry> file(zip_fopen(archive_, entry.c_str(), 0));
  if (file == nullptr) {
    const int code = zip_error_code_zip(zip_get_error(archive_));
    RefuseSheet(path_, code == ZIP_ER_NOPASSWD ? "is protected by a password." : kDamaged);
  }
  std::array<char, 1U << 16U> block{};
  while (true) {
    const zip_int64_t count = zip_fread(file.get(), block.data(), block.size());
    if (count < 0) {
      RefuseSheet(path_, kDamaged);
    }
    if (count == 0) {
      return;
    }
    unpacked_ += static_cast<std::uint64_t>(count);
    if (unpacked_ > kMaxUnpacked) {
      RefuseSheet(path_, "unpacks to more than a workbook may hold.");
    }
    take({block.data(), static_cast<std::size_t>(count)});
  }
}

std::string ZipFile::ReadShort(const std::string& entry) {
  constexpr std::size_t kLongest = 1U << 20U;
  std::string bytes;
  if (Has(entry)) {
    Read(entry, [&](std::string_view block) {
      if (bytes.size() < kLongest) {
        bytes += block;
      }
    });
  }
  return bytes;
}

}  // namespace lorvane
