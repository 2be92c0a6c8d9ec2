#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "screen/Buttons.h"

namespace lorvane {

/// The label of a field. A base of its own, so that it stands in front of the field.
class FieldLabel {
 public:
  FieldLabel(Screen& screen, std::string name, std::string caption)
      : label_(screen, std::move(name), std::move(caption)) {}

 protected:
  [[nodiscard]] Label& FrontLabel() { return label_; }

 private:
  Label label_;
};

/// A field with the label that names it: "txtCity" brings "lblCity" along.
template <typename Field>
class Labelled : private FieldLabel, public Field {
 public:
  template <typename... Rest>
  Labelled(Screen& screen, const std::string& name, std::string caption, Rest... rest)
      : FieldLabel(screen, "lbl" + name.substr(kPrefix), std::move(caption)),
        Field(screen, name, std::move(rest)...) {}

  /// Lays field and label on a tab page, counted from 1.
  void LayOnPage(int page) {
    FrontLabel().TabPage = page;
    Field::TabPage = page;
  }

 private:
  static constexpr std::size_t kPrefix = 3;
};

}  // namespace lorvane
