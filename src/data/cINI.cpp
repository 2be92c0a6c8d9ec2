#include "data/cINI.h"

#include <optional>
#include <utility>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/IniDocument.h"

namespace lorvane {
namespace {

void Take(const std::string& argument, std::string& property) {
  if (argument != "NA") {
    property = argument;
  }
}

}  // namespace

cINI::cINI(Files& files, std::string configName)
    : ConfigName(std::move(configName)), files_(&files) {}

const std::string& cINI::KeyGet(const std::string& section, const std::string& keyName,
                                const std::string& defaultValue) {
  Take(section, Section);
  Take(keyName, KeyName);
  const IniDocument document(files_->Read(FindWithoutCase(ConfigName)).value_or(""));
  KeyValue = Left(document.Get(Section, KeyName).value_or(defaultValue), kValueLimit);
  return KeyValue;
}

void cINI::KeySave(const std::string& keyValue, const std::string& section,
                   const std::string& keyName) {
  Take(keyValue, KeyValue);
  Take(section, Section);
  Take(keyName, KeyName);
  const std::string found = FindWithoutCase(ConfigName);
  const std::optional<std::string> content = files_->Read(found);
  if (!content && files_->Exists(found)) {
    // Writing over a file that can't be read would lose its other keys.
    return;
  }
  IniDocument document(content.value_or(""));
  document.Set(Section, KeyName, KeyValue);
  if (content == document.Text() && found == ConfigName) {
    return;
  }
  try {
    files_->Write(ConfigName, document.Text());
    if (found != ConfigName) {
      files_->Remove(found);
    }
  } catch (const RuntimeError&) {
    // The old file stands as it was; callers are not told of a write that failed.
  }
}

bool cINI::Exists(const std::string& section, const std::string& keyName) {
  Take(section, Section);
  Take(keyName, KeyName);
  return !SectionGet(Section).empty();
}

std::vector<std::string> cINI::SectionGet(const std::string& section) {
  if (!section.empty()) {
    Section = section;
  }
  if (Section.empty()) {
    return {};
  }
  const IniDocument document(files_->Read(FindWithoutCase(ConfigName)).value_or(""));
  // One separator stands between two lines, as in the buffer that limits them.
  const std::string buffer =
      Left(Join(document.Section(Section), std::string_view("\0", 1)), kSectionLimit);
  return buffer.empty() ? std::vector<std::string>() : Split(buffer, '\0');
}

}  // namespace lorvane
