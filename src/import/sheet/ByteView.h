#pragma once

#include <bit>
#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace lorvane {

/// Bytes of a binary file whose numbers stand low byte first. Reading behind their end raises
/// std::out_of_range.
class ByteView {
 public:
  ByteView() = default;
  explicit ByteView(std::string_view bytes) : bytes_(bytes) {}

  [[nodiscard]] std::size_t Size() const { return bytes_.size(); }
  [[nodiscard]] std::string_view Text() const { return bytes_; }
  [[nodiscard]] ByteView From(std::size_t at) const { return ByteView(bytes_.substr(at)); }
  [[nodiscard]] ByteView Part(std::size_t at, std::size_t count) const {
    if (at > bytes_.size() || count > bytes_.size() - at) {
      throw std::out_of_range("ByteView");
    }
    return ByteView(bytes_.substr(at, count));
  }

  [[nodiscard]] std::uint8_t One(std::size_t at) const {
    return static_cast<std::uint8_t>(bytes_.at(at));
  }
  [[nodiscard]] std::uint16_t Two(std::size_t at) const {
    return static_cast<std::uint16_t>(Number(at, 2));
  }
  [[nodiscard]] std::uint32_t Four(std::size_t at) const {
    return static_cast<std::uint32_t>(Number(at, 4));
  }
  [[nodiscard]] double Double(std::size_t at) const { return std::bit_cast<double>(Number(at, 8)); }

 private:
  [[nodiscard]] std::uint64_t Number(std::size_t at, std::size_t count) const {
    const std::string_view bytes = Part(at, count).bytes_;
    std::uint64_t number = 0;
    for (std::size_t place = count; place-- > 0;) {
      number = number << 8U | static_cast<std::uint8_t>(bytes[place]);
    }
    return number;
  }

  std::string_view bytes_;
};

}  // namespace lorvane
