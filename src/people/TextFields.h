#pragma once

#include <string>
#include <vector>

#include "screen/TextBox.h"

namespace lorvane {

/// An entry field, the column that it shows, and the record's property of that column.
template <typename Person>
struct TextField {
  TextBox* box;
  const char* column;
  std::string Person::*property;
};

template <typename Person>
using TextFields = std::vector<TextField<Person>>;

template <typename Person>
void ShowTexts(const Person& person, const TextFields<Person>& fields) {
  for (const TextField<Person>& field : fields) {
    field.box->SetText(person.*field.property);
  }
}

template <typename Person>
void CopyTexts(const TextFields<Person>& fields, Person& person) {
  for (const TextField<Person>& field : fields) {
    person.*field.property = field.box->Text();
  }
}

template <typename Person>
void ClearTexts(const TextFields<Person>& fields) {
  for (const TextField<Person>& field : fields) {
    field.box->SetText({});
  }
}

}  // namespace lorvane
