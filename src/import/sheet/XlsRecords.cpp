#include "import/sheet/XlsRecords.h"

#include "basic/Text.h"

namespace lorvane {
namespace {

constexpr std::size_t kHeadSize = 4;

// Gathers the halves in which characters beyond the first 65,536 come.
class Characters16 {
 public:
  void Add(std::uint32_t unit) {
    constexpr std::uint32_t kMark = 0xFC00;
    if ((unit & kMark) == 0xD800U) {
      high_ = unit;
    } else if ((unit & kMark) != 0xDC00U) {
      AppendCharacter(text_, unit);
      high_ = 0;
    } else if (high_ != 0) {
      AppendCharacter(text_, 0x10000U + ((high_ & 0x3FFU) << 10U) + (unit & 0x3FFU));
      high_ = 0;
    }
  }
  [[nodiscard]] std::string Take() { return std::move(text_); }

 private:
  std::string text_;
  std::uint32_t high_ = 0;
};

}  // namespace

ByteView XlsRecords::Take(unsigned& kind) {
  kind = stream_.Two(at_);
  const std::size_t size = stream_.Two(at_ + 2);
  const ByteView data = stream_.Part(at_ + kHeadSize, size);
  at_ += kHeadSize + size;
  return data;
}

XlsRecord XlsRecords::Next() {
  XlsRecord record;
  record.parts.push_back(Take(record.kind));
  while (at_ + kHeadSize <= stream_.Size() && stream_.Two(at_) == xls_record::kContinue) {
    unsigned kind = 0;
    record.parts.push_back(Take(kind));
  }
  return record;
}

const ByteView& XlsTexts::Part() {
  while (at_ >= record_->parts.at(part_).Size()) {
    ++part_;
    at_ = 0;
  }
  return record_->parts[part_];
}

std::uint8_t XlsTexts::Byte() {
  const std::uint8_t byte = Part().One(at_);
  ++at_;
  return byte;
}

std::uint32_t XlsTexts::Number(std::size_t bytes) {
  std::uint32_t number = 0;
  for (std::size_t place = 0; place < bytes; ++place) {
    number |= static_cast<std::uint32_t>(Byte()) << (8U * place);
  }
  return number;
}

void XlsTexts::Skip(std::size_t bytes) {
  while (bytes > 0) {
    const std::size_t step = std::min(bytes, Part().Size() - at_);
    at_ += step;
    bytes -= step;
  }
}

std::string XlsTexts::Next() { return Rest(Number(2)); }

std::string XlsTexts::NextShort() { return Rest(Number(1)); }

std::string XlsTexts::Rest(std::size_t length) {
  constexpr unsigned kWide = 1;
  constexpr unsigned kSpoken = 4;
  constexpr unsigned kFormatted = 8;
  constexpr std::size_t kFormatSize = 4;
  unsigned flags = Byte();
  const std::size_t formats = (flags & kFormatted) != 0 ? Number(2) : 0;
  const std::size_t spoken = (flags & kSpoken) != 0 ? Number(4) : 0;
  Characters16 characters;
  for (; length > 0; --length) {
    if (at_ >= record_->parts.at(part_).Size()) {
      flags = Byte();
    }
    characters.Add(Number((flags & kWide) != 0 ? 2 : 1));
  }
  Skip(formats * kFormatSize + spoken);
  return characters.Take();
}

}  // namespace lorvane
