#include "screen/MaskedText.h"

#include <algorithm>
#include <utility>

namespace lorvane {
namespace {

constexpr char kDigitPlace = '#';
constexpr char kNoDigit = '_';

}  // namespace

MaskedText::MaskedText(Screen& screen, std::string name, std::string mask)
    : TextBox(screen, std::move(name)), mask_(std::move(mask)) {
  SetText(EmptyText());
}

std::string MaskedText::EmptyText() const {
  std::string text = mask_;
  std::replace(text.begin(), text.end(), kDigitPlace, kNoDigit);
  return text;
}

void MaskedText::Edit(int key) {
  const bool isDigit = key >= '0' && key <= '9';
  if (!isDigit && key != '\b') {
    return;
  }
  std::string text = Text().size() == mask_.size() ? Text() : EmptyText();
  std::size_t at = std::min(SelectionStart(), text.size());
  const std::size_t selectionEnd = std::min(at + SelectionLength(), text.size());
  for (std::size_t i = at; i < selectionEnd; ++i) {
    text[i] = mask_[i] == kDigitPlace ? kNoDigit : mask_[i];
  }
  if (key == '\b') {
    if (selectionEnd == at && at > 0) {
      --at;
      while (at > 0 && mask_[at] != kDigitPlace) {
        --at;
      }
      text[at] = mask_[at] == kDigitPlace ? kNoDigit : mask_[at];
    }
  } else {
    while (at < mask_.size() && mask_[at] != kDigitPlace) {
      ++at;
    }
    if (at < mask_.size()) {
      text[at] = static_cast<char>(key);
      ++at;
    }
  }
  SetText(std::move(text));
  Select(at, 0);
}

}  // namespace lorvane
