#pragma once

#include <memory>
#include <string>
#include <vector>

#include "company/ProvinceBox.h"
#include "company/cCompany.h"
#include "employer/cOptions.h"
#include "people/FieldHabits.h"
#include "screen/Labelled.h"
#include "screen/TextBox.h"

namespace lorvane {

/// How one of the contacts of the employer update names its controls.
struct ContactDesign {
  const char* frame;
  const char* caption;
  /// What stands between "txt" and the field in the names of its text fields.
  const char* stem;
  const char* provinceBox;
  /// A person, with name, phone and fax; otherwise a place.
  bool isPerson;
  /// The tab page, counted from 1.
  int page;
};

/// The fields of one contact: for claims, for financial matters, or of the business's own place.
class ContactFields {
 public:
  ContactFields(Screen& screen, const FieldHabits& habits, const ContactDesign& design);

  Frame frame;

  /// The text fields in their order. The province stands in front of the postal code.
  [[nodiscard]] std::vector<TextBox*> TextBoxes() const;
  [[nodiscard]] ProvinceBox& Province() const { return *province_; }

  void Show(const EmployerContact& contact);
  /// Copies what the fields hold; SameAs and what has no field stay as they are.
  void CopyTo(EmployerContact& contact) const;

 private:
  struct Field {
    std::unique_ptr<Labelled<TextBox>> box;
    std::string EmployerContact::*property;
  };
  struct FieldDesign;

  void AddField(Screen& screen, const FieldHabits& habits, const ContactDesign& design,
                const FieldDesign& field);
  void AddProvince(Screen& screen, const FieldHabits& habits, const ContactDesign& design);

  std::vector<Field> fields_;
  std::unique_ptr<Labelled<ProvinceBox>> province_;
};

/// The company's own address as a contact, under nobody's name.
[[nodiscard]] EmployerContact ContactOf(const cCompany& company);

}  // namespace lorvane
