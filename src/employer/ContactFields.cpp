#include "employer/ContactFields.h"

namespace lorvane {

struct ContactFields::FieldDesign {
  const char* name;
  const char* caption;
  std::string EmployerContact::*property;
  bool ofPersons;
};

ContactFields::ContactFields(Screen& screen, const FieldHabits& habits, const ContactDesign& design)
    : frame(screen, design.frame, design.caption) {
  frame.TabPage = design.page;
  AddField(screen, habits, design, {"Name", "Name:", &EmployerContact::Name, true});
  AddField(screen, habits, design, {"Street", "Street:", &EmployerContact::Street, false});
  AddField(screen, habits, design, {"City", "City:", &EmployerContact::City, false});
  AddProvince(screen, habits, design);
  AddField(screen, habits, design,
           {"PostalCode", "Post/Zip Code:", &EmployerContact::PostalCode, false});
  AddField(screen, habits, design, {"Phone", "Phone:", &EmployerContact::Phone, true});
  AddField(screen, habits, design, {"Fax", "Fax:", &EmployerContact::Fax, true});
}

void ContactFields::AddField(Screen& screen, const FieldHabits& habits, const ContactDesign& design,
                             const FieldDesign& field) {
  if (field.ofPersons && !design.isPerson) {
    return;
  }
  const std::string name = std::string("txt") + design.stem + field.name;
  fields_.push_back(
      {std::make_unique<Labelled<TextBox>>(screen, name, field.caption), field.property});
  Labelled<TextBox>& box = *fields_.back().box;
  box.LayOnPage(design.page);
  box.SetMaxLength(cOptions::kLongestValue);
  habits.MakeEntryField(box);
}

void ContactFields::AddProvince(Screen& screen, const FieldHabits& habits,
                                const ContactDesign& design) {
  province_ = std::make_unique<Labelled<ProvinceBox>>(screen, design.provinceBox, "Prov/State:");
  province_->LayOnPage(design.page);
  habits.MarkEditWithKeys(*province_);
}

std::vector<TextBox*> ContactFields::TextBoxes() const {
  std::vector<TextBox*> boxes;
  boxes.reserve(fields_.size());
  for (const Field& field : fields_) {
    boxes.push_back(field.box.get());
  }
  return boxes;
}

void ContactFields::Show(const EmployerContact& contact) {
  for (const Field& field : fields_) {
    field.box->SetText(contact.*field.property);
  }
  province_->Show(contact.Province);
}

void ContactFields::CopyTo(EmployerContact& contact) const {
  for (const Field& field : fields_) {
    contact.*field.property = field.box->Text();
  }
  contact.Province = province_->Code();
}

EmployerContact ContactOf(const cCompany& company) {
  EmployerContact contact;
  contact.Street = company.Address;
  contact.City = company.City;
  contact.Province = company.Province;
  contact.PostalCode = company.PostalCode;
  contact.Phone = "(" + company.AreaPhone + ") " + company.Phone;
  contact.Fax = "(" + company.AreaFax + ") " + company.Fax;
  return contact;
}

}  // namespace lorvane
