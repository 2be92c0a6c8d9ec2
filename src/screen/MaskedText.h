#pragma once

#include <string>

#include "screen/TextBox.h"

namespace lorvane {

/// A field whose text follows a mask such as "###-###-###": "#" takes a digit and shows "_" until
/// it has one, every other character of the mask stands where it is. Keys that don't fit are passed
/// over.
class MaskedText : public TextBox {
 public:
  MaskedText(Screen& screen, std::string name, std::string mask);

  [[nodiscard]] const std::string& Mask() const { return mask_; }
  /// The mask with no digit in it.
  [[nodiscard]] std::string EmptyText() const;

 protected:
  void Edit(int key) override;

 private:
  std::string mask_;
};

}  // namespace lorvane
