#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lorvane {

/// One of the six industries of a company. Every per-industry column and property bears its letter.
enum class IndustrySlot : std::uint8_t { kA, kB, kC, kD, kE, kF };

inline constexpr std::array kAllSlots{IndustrySlot::kA, IndustrySlot::kB, IndustrySlot::kC,
                                      IndustrySlot::kD, IndustrySlot::kE, IndustrySlot::kF};

/// 0 to 5: the slot's place in an array.
[[nodiscard]] constexpr std::size_t IndexOf(IndustrySlot slot) {
  return static_cast<std::size_t>(slot);
}

/// 1 to 6: how a slot is stored and attached to the entry of a list.
[[nodiscard]] constexpr int NumberOf(IndustrySlot slot) { return static_cast<int>(slot) + 1; }

/// The slot of a number from 1 to 6; nothing for any other.
[[nodiscard]] constexpr std::optional<IndustrySlot> SlotOfNumber(int number) {
  if (number < 1 || number > static_cast<int>(kAllSlots.size())) {
    return std::nullopt;
  }
  return static_cast<IndustrySlot>(number - 1);
}

/// 'A' to 'F'.
[[nodiscard]] constexpr char LetterOf(IndustrySlot slot) {
  return static_cast<char>('A' + static_cast<int>(slot));
}

/// A slot's column or control: SlotName("Amount", slot A) is "AmountA".
[[nodiscard]] inline std::string SlotName(std::string_view stem, IndustrySlot slot) {
  return std::string(stem) + LetterOf(slot);
}

/// The six columns of a stem with ", " between them: "IndA, IndB, IndC, IndD, IndE, IndF".
[[nodiscard]] inline std::string SlotNames(std::string_view stem) {
  std::string names;
  for (const IndustrySlot slot : kAllSlots) {
    names += (names.empty() ? "" : ", ") + SlotName(stem, slot);
  }
  return names;
}

/// One value for each slot.
template <typename T>
class PerSlot {
 public:
  [[nodiscard]] T& operator[](IndustrySlot slot) { return values_[IndexOf(slot)]; }
  [[nodiscard]] const T& operator[](IndustrySlot slot) const { return values_[IndexOf(slot)]; }

  [[nodiscard]] auto begin() { return values_.begin(); }
  [[nodiscard]] auto end() { return values_.end(); }
  [[nodiscard]] auto begin() const { return values_.begin(); }
  [[nodiscard]] auto end() const { return values_.end(); }

 private:
  std::array<T, kAllSlots.size()> values_{};
};

}  // namespace lorvane
