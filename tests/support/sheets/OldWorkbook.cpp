#include "support/sheets/OldWorkbook.h"

#include <bit>
#include <cstdint>
#include <fstream>

namespace lorvane {
namespace {

constexpr std::size_t kSector = 512;
constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr std::uint32_t kFree = 0xFFFFFFFF;
constexpr std::uint32_t kTableSector = 0xFFFFFFFD;

std::string Low(std::uint64_t number, std::size_t bytes) {
  std::string text;
  for (std::size_t place = 0; place < bytes; ++place) {
    text += static_cast<char>((number >> (8 * place)) & 0xFFU);
  }
  return text;
}

std::string Two(std::uint64_t number) { return Low(number, 2); }
std::string Four(std::uint64_t number) { return Low(number, 4); }
std::string Eight(double number) { return Low(std::bit_cast<std::uint64_t>(number), 8); }

std::string Record(unsigned kind, const std::string& data) {
  return Two(kind) + Two(data.size()) + data;
}

std::string Begin(unsigned kind) {
  return Record(0x0809, Two(0x0600) + Two(kind) + Two(0x0DBB) + Two(0x07CC) + Four(0) + Four(6));
}

std::string At(int row, int column, unsigned style) {
  return Two(static_cast<unsigned>(row)) + Two(static_cast<unsigned>(column)) + Two(style);
}

std::string LongText(const std::string& latin1) {
  return Two(latin1.size()) + std::string(1, '\0') + latin1;
}

std::string Formula(int row, int column, const std::string& value) {
  return Record(0x0006, At(row, column, 0) + value + Two(0) + Four(0) + Two(3) + "\x1E" + Two(1));
}

std::string DirectoryEntry(std::string_view name, char kind, std::uint32_t child,
                           std::uint32_t start, std::size_t size) {
  std::string entry;
  for (const char letter : name) {
    entry += Two(static_cast<unsigned char>(letter));
  }
  entry.resize(64);
  entry += Two(name.empty() ? 0 : 2 * name.size() + 2) + kind + '\x01' + Four(kFree) + Four(kFree) +
           Four(child);
  entry.resize(116);
  return entry + Four(start) + Low(size, 8);
}

}  // namespace

void OldWorkbook::AddNumber(int row, int column, double number, bool isDate) {
  sheets_.back() += Record(0x0203, At(row, column, isDate ? 1 : 0) + Eight(number));
}

void OldWorkbook::AddText(int row, int column, const std::string& latin1) {
  sheets_.back() += Record(0x00FD, At(row, column, 0) + Four(texts_.size()));
  texts_.push_back(latin1);
}

void OldWorkbook::AddFlag(int row, int column, bool flag) {
  sheets_.back() += Record(0x0205, At(row, column, 0) + (flag ? '\x01' : '\0') + '\0');
}

void OldWorkbook::AddOwnText(int row, int column, const std::string& latin1) {
  sheets_.back() += Record(0x0204, At(row, column, 0) + LongText(latin1));
}

void OldWorkbook::AddError(int row, int column, unsigned code) {
  sheets_.back() += Record(0x0205, At(row, column, 0) + Low(code, 1) + '\x01');
}

void OldWorkbook::AddPacked(int row, int column, std::uint32_t packed) {
  sheets_.back() += Record(0x027E, At(row, column, 0) + Four(packed));
}

void OldWorkbook::AddFormula(int row, int column, double value) {
  sheets_.back() += Formula(row, column, Eight(value));
}

void OldWorkbook::AddFormula(int row, int column, const std::string& latin1) {
  sheets_.back() +=
      Formula(row, column, std::string(6, '\0') + Two(0xFFFF)) + Record(0x0207, LongText(latin1));
}

void OldWorkbook::NextSheet() { sheets_.emplace_back(); }

std::string OldWorkbook::Stream() const {
  std::string head = Begin(0x0005);
  if (Protected) {
    head += Record(0x002F, std::string(6, '\0'));
  }
  head += Record(0x0042, Two(0x04B0)) +
          Record(0x003D,
                 std::string(10, '\0') + Two(static_cast<unsigned>(Front)) + std::string(6, '\0'));
  for (const unsigned format : {0U, 14U}) {
    head += Record(0x00E0, Two(0) + Two(format) + std::string(16, '\0'));
  }
  std::string shared = Four(texts_.size()) + Four(texts_.size());
  for (const std::string& text : texts_) {
    shared += LongText(text);
  }
  const std::string tail = Record(0x00FC, shared) + Record(0x000A, "");
  constexpr std::size_t kSheetEntry = 4 + 4 + 2 + 2 + 2;
  std::size_t offset = head.size() + sheets_.size() * kSheetEntry + tail.size();
  std::string list;
  std::string bodies;
  for (std::size_t place = 0; place < sheets_.size(); ++place) {
    list += Record(0x0085, Four(offset + bodies.size()) + Two(0) + Two(2) + "S" +
                               static_cast<char>('1' + place));
    bodies += Begin(0x0010) + Record(0x0200, Four(0) + Four(100) + Two(0) + Two(8) + Two(0)) +
              sheets_[place] + Record(0x000A, "");
  }
  return head + list + tail + bodies;
}

std::string OldWorkbook::Bytes() const { return CompoundFileOf("Workbook", Stream()); }

void OldWorkbook::Write(const std::string& path) const {
  std::ofstream(path, std::ios::binary) << Bytes();
}

std::string CompoundFileOf(std::string_view name, std::string stream) {
  // A shorter stream would be kept in another way.
  constexpr std::size_t kShortest = 4096;
  stream.resize(std::max(stream.size(), kShortest));
  stream.resize((stream.size() + kSector - 1) / kSector * kSector);
  constexpr std::uint32_t kFirst = 2;
  const std::uint32_t last = kFirst + static_cast<std::uint32_t>(stream.size() / kSector) - 1;
  std::string header("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
  header += std::string(16, '\0') + Two(0x3E) + Two(3) + Two(0xFFFE) + Two(9) + Two(6) +
            std::string(6, '\0') + Four(0) + Four(1) + Four(1) + Four(0) + Four(kShortest) +
            Four(kEndOfChain) + Four(0) + Four(kEndOfChain) + Four(0) + Four(0);
  while (header.size() < kSector) {
    header += Four(kFree);
  }
  std::string table = Four(kTableSector) + Four(kEndOfChain);
  for (std::uint32_t sector = kFirst; sector <= last; ++sector) {
    table += Four(sector == last ? kEndOfChain : sector + 1);
  }
  while (table.size() < kSector) {
    table += Four(kFree);
  }
  std::string directory = DirectoryEntry("Root Entry", 5, 1, kEndOfChain, 0) +
                          DirectoryEntry(name, 2, kFree, kFirst, stream.size()) +
                          DirectoryEntry("", 0, kFree, 0, 0) + DirectoryEntry("", 0, kFree, 0, 0);
  return header + table + directory + stream;
}

}  // namespace lorvane
