#include "screen/TextBox.h"

#include <algorithm>
#include <utility>

#include "basic/Text.h"

namespace lorvane {

void TextBox::SetText(std::string text) {
  if (text == text_) {
    return;
  }
  text_ = std::move(text);
  selectionStart_ = std::min(selectionStart_, Length(text_));
  selectionLength_ = 0;
  Changed();
  if (OnChange) {
    OnChange();
  }
}

void TextBox::SetMaxLength(std::size_t characters) {
  maxLength_ = characters;
  Changed();
}

void TextBox::SetReadOnly(bool readOnly) {
  readOnly_ = readOnly;
  Changed();
}

void TextBox::SetCase(LetterCase letterCase) {
  case_ = letterCase;
  Changed();
}

void TextBox::Select(std::size_t start, std::size_t length) {
  selectionStart_ = std::min(start, Length(text_));
  selectionLength_ = std::min(length, Length(text_) - selectionStart_);
  Changed();
}

bool TextBox::UserKey(int key) {
  if (!Usable()) {
    return false;
  }
  if (OnKeyPress) {
    OnKeyPress(key);
  }
  if (key == key_code::kNone) {
    return true;
  }
  const bool isText =
      key >= ' ' || key == key_code::kBackspace || (key == key_code::kEnter && MultiLine);
  if (isText && !readOnly_) {
    Edit(key);
  }
  return isText;
}

void TextBox::Edit(int key) {
  std::size_t start = selectionStart_;
  std::size_t length = selectionLength_;
  std::string inserted;
  if (key == key_code::kBackspace) {
    if (length == 0 && start > 0) {
      --start;
      length = 1;
    }
  } else {
    inserted = key == key_code::kEnter ? std::string(kCrLf) : TextOfKey(key);
    if (case_ != LetterCase::kAsTyped) {
      inserted = case_ == LetterCase::kUpper ? ToUpper(inserted) : ToLower(inserted);
    }
    if (maxLength_ != 0 && Length(text_) - length + Length(inserted) > maxLength_) {
      return;
    }
  }
  SetText(Left(text_, start) + inserted + Mid(text_, start + length + 1));
  Select(start + Length(inserted), 0);
}

std::string TextOfKey(int key) {
  std::string text;
  AppendCharacter(text, static_cast<std::uint32_t>(key));
  return text;
}

}  // namespace lorvane
