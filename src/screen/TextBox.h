#pragma once

#include <cstddef>
#include <string>

#include "screen/Control.h"

namespace lorvane {

/// How an entry field shows letters as they are typed.
enum class LetterCase { kAsTyped, kLower, kUpper };

/// A field for a line of text (or several, see MultiLine).
class TextBox : public Control {
 public:
  using Control::Control;

  [[nodiscard]] const std::string& Text() const { return text_; }
  /// Raises OnChange when the text differs. A text set by code isn't cut.
  virtual void SetText(std::string text);
  /// Characters that a user can type; 0 for no limit.
  [[nodiscard]] std::size_t MaxLength() const { return maxLength_; }
  void SetMaxLength(std::size_t characters);
  /// A user can't change the text.
  [[nodiscard]] bool ReadOnly() const { return readOnly_; }
  void SetReadOnly(bool readOnly);
  [[nodiscard]] LetterCase Case() const { return case_; }
  void SetCase(LetterCase letterCase);
  bool MultiLine = false;

  /// The selection in characters.
  [[nodiscard]] std::size_t SelectionStart() const { return selectionStart_; }
  [[nodiscard]] std::size_t SelectionLength() const { return selectionLength_; }
  void Select(std::size_t start, std::size_t length);

  std::function<void()> OnChange;

  bool UserKey(int key) override;
  [[nodiscard]] std::string ShownText() const override { return text_; }

 protected:
  /// A character or Backspace that passed the key filter.
  virtual void Edit(int key);

 private:
  std::string text_;
  std::size_t maxLength_ = 0;
  bool readOnly_ = false;
  LetterCase case_ = LetterCase::kAsTyped;
  std::size_t selectionStart_ = 0;
  std::size_t selectionLength_ = 0;
};

/// The UTF-8 text of a character's key.
[[nodiscard]] std::string TextOfKey(int key);

}  // namespace lorvane
