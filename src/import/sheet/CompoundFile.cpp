#include "import/sheet/CompoundFile.h"

#include <algorithm>

namespace lorvane {
namespace {

constexpr std::size_t kHeaderSize = 512;
constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr std::size_t kNumberSize = 4;

[[noreturn]] void Damaged() { throw std::out_of_range("CompoundFile"); }

// Sizes of 512 and 4096 bytes are in use for sectors, and 64 for small ones.
std::size_t SizeOf(unsigned power) {
  constexpr unsigned kLargest = 12;
  if (power == 0 || power > kLargest) {
    Damaged();
  }
  return std::size_t{1} << power;
}

void AppendNumbers(std::vector<std::uint32_t>& numbers, ByteView bytes) {
  for (std::size_t at = 0; at + kNumberSize <= bytes.Size(); at += kNumberSize) {
    numbers.push_back(bytes.Four(at));
  }
}

}  // namespace

CompoundFile::CompoundFile(std::string_view bytes)
    : bytes_(bytes),
      sectorSize_(SizeOf(bytes_.Two(0x1E))),
      smallSectorSize_(SizeOf(bytes_.Two(0x20))) {
  ReadTable();
  ReadDirectory();
}

ByteView CompoundFile::Sector(std::uint32_t number) const {
  // The header takes a sector's place, whatever their size.
  return bytes_.Part((number + std::size_t{1}) * sectorSize_, sectorSize_);
}

// The header lists the first sectors of the table; a chain of sectors lists the rest.
void CompoundFile::ReadTable() {
  constexpr std::size_t kListAt = 0x4C;
  std::vector<std::uint32_t> sectors;
  AppendNumbers(sectors, bytes_.Part(kListAt, kHeaderSize - kListAt));
  const std::size_t most = bytes_.Size() / sectorSize_;
  std::uint32_t next = bytes_.Four(0x44);
  for (std::size_t steps = 0; next < kEndOfChain - 1; ++steps) {
    if (steps > most) {
      Damaged();
    }
    const ByteView list = Sector(next);
    AppendNumbers(sectors, list.Part(0, sectorSize_ - kNumberSize));
    next = list.Four(sectorSize_ - kNumberSize);
  }
  const std::uint32_t count = bytes_.Four(0x2C);
  if (count > sectors.size() || count > most) {
    Damaged();
  }
  for (std::uint32_t place = 0; place < count; ++place) {
    AppendNumbers(table_, Sector(sectors[place]));
  }
}

std::string CompoundFile::Chain(std::uint32_t start) const {
  std::string joined;
  for (std::uint32_t sector = start; sector != kEndOfChain; sector = table_.at(sector)) {
    if (joined.size() > bytes_.Size()) {
      Damaged();
    }
    joined += Sector(sector).Text();
  }
  return joined;
}

void CompoundFile::ReadDirectory() {
  constexpr std::size_t kEntrySize = 128;
  constexpr unsigned kStreamKind = 2;
  const std::string directory = Chain(bytes_.Four(0x30));
  for (std::size_t at = 0; at + kEntrySize <= directory.size(); at += kEntrySize) {
    const ByteView stored = ByteView(directory).Part(at, kEntrySize);
    Entry entry;
    // Names that are looked for are plain ASCII.
    for (std::size_t place = 0; place < 32 && stored.Two(2 * place) != 0; ++place) {
      entry.name += static_cast<char>(stored.One(2 * place));
    }
    entry.isStream = stored.One(0x42) == kStreamKind;
    entry.start = stored.Four(0x74);
    entry.size = stored.Four(0x78);
    entries_.push_back(std::move(entry));
  }
}

std::string CompoundFile::SmallStream(const Entry& entry) const {
  // The first entry holds all small streams; they have a table of their own.
  const std::string container = Chain(entries_.at(0).start);
  const std::string stored = Chain(bytes_.Four(0x3C));
  std::vector<std::uint32_t> table;
  AppendNumbers(table, ByteView(stored));
  std::string joined;
  for (std::uint32_t sector = entry.start; sector != kEndOfChain; sector = table.at(sector)) {
    if (joined.size() > container.size()) {
      Damaged();
    }
    joined += ByteView(container).Part(sector * smallSectorSize_, smallSectorSize_).Text();
  }
  return joined;
}

std::optional<std::string> CompoundFile::Stream(std::string_view name) const {
  const auto entry = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& candidate) {
    return candidate.isStream && candidate.name == name;
  });
  if (entry == entries_.end()) {
    return std::nullopt;
  }
  const bool isSmall = entry->size < bytes_.Four(0x38);
  std::string bytes = isSmall ? SmallStream(*entry) : Chain(entry->start);
  if (bytes.size() < entry->size) {
    Damaged();
  }
  bytes.resize(entry->size);
  return bytes;
}

}  // namespace lorvane
