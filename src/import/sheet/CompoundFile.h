#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "import/sheet/ByteView.h"

namespace lorvane {

/// A compound file: streams with names, cut into sectors of one file. Old workbooks are kept in
/// one, and encrypted new ones. A damaged one raises std::out_of_range; nothing that is read is
/// larger than the file.
class CompoundFile {
 public:
  /// `bytes` outlives this object.
  explicit CompoundFile(std::string_view bytes);

  /// The first stream of that name; nothing when there is none.
  [[nodiscard]] std::optional<std::string> Stream(std::string_view name) const;

 private:
  struct Entry {
    std::string name;
    bool isStream = false;
    std::uint32_t start = 0;
    std::size_t size = 0;
  };

  [[nodiscard]] ByteView Sector(std::uint32_t number) const;
  /// The sectors of a chain, joined.
  [[nodiscard]] std::string Chain(std::uint32_t start) const;
  [[nodiscard]] std::string SmallStream(const Entry& entry) const;
  void ReadTable();
  void ReadDirectory();

  ByteView bytes_;
  std::size_t sectorSize_;
  std::size_t smallSectorSize_;
  /// For each sector the next one of its chain.
  std::vector<std::uint32_t> table_;
  std::vector<Entry> entries_;
};

}  // namespace lorvane
