#pragma once

#include <string>
#include <vector>

#include "data/Files.h"

namespace lorvane {

/// Reader and writer of a company's configuration file. Made afresh for each use.
///
/// The text "NA" as an argument keeps the property of that name; any other text replaces it first.
/// A missing file reads as one without sections; a write that fails goes unnoticed.
class cINI {
 public:
  /// Characters of a value, and of a whole section, that a reader gets.
  static constexpr std::size_t kValueLimit = 255;
  static constexpr std::size_t kSectionLimit = 2048;

  cINI(Files& files, std::string configName);

  /// Full path of the file. It is found without regard to case, and written as spelled here.
  std::string ConfigName;
  std::string Section;
  std::string KeyName;
  std::string KeyValue;

  /// The value, cut to 255 characters, or the default when key or section is missing. Stored in
  /// KeyValue as well.
  const std::string& KeyGet(const std::string& section, const std::string& keyName,
                            const std::string& defaultValue);
  void KeySave(const std::string& keyValue, const std::string& section, const std::string& keyName);
  /// Whether the section holds at least one line; the key isn't looked at.
  [[nodiscard]] bool Exists(const std::string& section, const std::string& keyName);
  /// The section's lines in file order, key and value joined by an equals sign, of its first 2048
  /// characters. An empty argument takes the current section.
  [[nodiscard]] std::vector<std::string> SectionGet(const std::string& section);

 private:
  Files* files_;
};

}  // namespace lorvane
