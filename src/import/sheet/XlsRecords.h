#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "import/sheet/ByteView.h"

namespace lorvane {

/// The kinds of records of an old workbook that are looked at.
namespace xls_record {

inline constexpr unsigned kFormula = 0x0006;
inline constexpr unsigned kEnd = 0x000A;
inline constexpr unsigned kCountsFrom1904 = 0x0022;
inline constexpr unsigned kPassword = 0x002F;
inline constexpr unsigned kContinue = 0x003C;
inline constexpr unsigned kWindow = 0x003D;
inline constexpr unsigned kSheet = 0x0085;
inline constexpr unsigned kPackedNumbers = 0x00BD;
inline constexpr unsigned kRichText = 0x00D6;
inline constexpr unsigned kStyle = 0x00E0;
inline constexpr unsigned kTexts = 0x00FC;
inline constexpr unsigned kTextNumber = 0x00FD;
inline constexpr unsigned kNumber = 0x0203;
inline constexpr unsigned kText = 0x0204;
inline constexpr unsigned kFlagOrError = 0x0205;
inline constexpr unsigned kTextOfFormula = 0x0207;
inline constexpr unsigned kPackedNumber = 0x027E;
inline constexpr unsigned kFormat = 0x041E;
inline constexpr unsigned kBegin = 0x0809;

}  // namespace xls_record

/// A record with those that continue it.
struct XlsRecord {
  unsigned kind = 0;
  /// The record's own bytes first.
  std::vector<ByteView> parts;

  [[nodiscard]] const ByteView& Data() const { return parts.front(); }
};

/// The records of a workbook's stream from a place on. All raise std::out_of_range when the stream
/// ends too early.
class XlsRecords {
 public:
  XlsRecords(ByteView stream, std::size_t at) : stream_(stream), at_(at) {}

  [[nodiscard]] XlsRecord Next();

 private:
  [[nodiscard]] ByteView Take(unsigned& kind);

  ByteView stream_;
  std::size_t at_;
};

/// Reads texts that stand one behind the other in a record, and go on in the records that continue
/// it: each of these begins with a byte that tells the width of a text's further characters.
class XlsTexts {
 public:
  /// `record` outlives this object.
  XlsTexts(const XlsRecord& record, std::size_t at) : record_(&record), at_(at) {}

  /// A text with its length in two bytes in front, or in one.
  [[nodiscard]] std::string Next();
  [[nodiscard]] std::string NextShort();

 private:
  [[nodiscard]] std::string Rest(std::size_t length);
  [[nodiscard]] const ByteView& Part();
  [[nodiscard]] std::uint8_t Byte();
  [[nodiscard]] std::uint32_t Number(std::size_t bytes);
  void Skip(std::size_t bytes);

  const XlsRecord* record_;
  std::size_t part_ = 0;
  std::size_t at_;
};

}  // namespace lorvane
