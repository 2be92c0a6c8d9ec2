#include "employer/cOptions.h"

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/IniDocument.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"

namespace lorvane {
namespace {

// The word that keeps what was set as a property, so that a value may be that very word.
constexpr const char* kAsSet = "NA";

std::vector<OptionKey> KeysOf(EmployerContact& contact, bool isPerson) {
  std::vector<OptionKey> keys{{"Street", &contact.Street},
                              {"City", &contact.City},
                              {"Province", &contact.Province},
                              {"PostalCode", &contact.PostalCode},
                              {"SameAs", &contact.SameAs}};
  if (isPerson) {
    keys.insert(keys.begin(), {"Name", &contact.Name});
    keys.insert(keys.end() - 1, {{"Phone", &contact.Phone}, {"Fax", &contact.Fax}});
  }
  return keys;
}

}  // namespace

std::vector<OptionSection> SectionsOf(EmployerOptions& options) {
  return {
      {"Claim", KeysOf(options.Claim, true)},
      {"Financial", KeysOf(options.Finan, true)},
      {"Location", KeysOf(options.Loc, false)},
      {"PayrollService",
       {{"Internal", &options.Internal},
        {"External", &options.External},
        {"Name", &options.ServiceProvider}}},
      {"FinancialInstitution",
       {{"Name", &options.FinancialInstitution}, {"AcctNo", &options.AcctNo}}},
      {"MainBusiness", {{"MainBusiness", &options.MainBusiness}}, false},
  };
}

cOptions::cOptions(ScreenContext context) : context_(context) {}

template <typename Work>
bool cOptions::Guarded(Work work) const {
  try {
    work();
    return true;
  } catch (const RuntimeError& error) {
    ShowError(context_, error, box::kExclamation);
    return false;
  }
}

bool cOptions::GetOptions(const std::string& path) {
  return Guarded([&] {
    bool complete = true;
    for (const OptionSection& section : SectionsOf(*this)) {
      // What stands behind a broken section is read all the same, or the next save would lose it.
      complete = ReadSection(path, section) && complete;
    }
    if (!complete) {
      throw RuntimeError(error_number::kSubscriptOutOfRange);
    }
  });
}

bool cOptions::ReadSection(const std::string& path, const OptionSection& section) const {
  cINI ini(context_.session.files, path);
  if (!section.byPlace) {
    for (const OptionKey& key : section.keys) {
      ini.Section = section.name;
      ini.KeyName = key.name;
      *key.value = ini.KeyGet(kAsSet, kAsSet, "");
    }
    return true;
  }
  std::vector<std::string> lines = ini.SectionGet(section.name);
  // What ends the last line is followed by an empty one: the last key may be missing.
  if (!lines.empty()) {
    lines.emplace_back();
  }
  for (std::size_t place = 0; place < section.keys.size(); ++place) {
    if (place >= lines.size()) {
      return false;
    }
    const OptionKey& key = section.keys[place];
    const std::size_t valueStart = Length(key.name) + Length("=") + 1;
    *key.value = Mid(lines[place], valueStart);
  }
  return true;
}

bool cOptions::SaveOptions(const std::string& path) {
  return Guarded([&] {
    for (const OptionSection& section : SectionsOf(*this)) {
      for (const OptionKey& key : section.keys) {
        cINI ini(context_.session.files, path);
        ini.Section = section.name;
        ini.KeyName = key.name;
        ini.KeyValue = *key.value;
        ini.KeySave(kAsSet, kAsSet, kAsSet);
      }
    }
    if (!IsStored(path)) {
      throw RuntimeError(error_number::kPathFileAccess);
    }
  });
}

// A write that failed goes unnoticed. The file holds every value when setting all of them again
// changes nothing.
bool cOptions::IsStored(const std::string& path) {
  IniDocument document(context_.session.files.Read(FindWithoutCase(path)).value_or(""));
  const std::string stored = document.Text();
  for (const OptionSection& section : SectionsOf(*this)) {
    for (const OptionKey& key : section.keys) {
      document.Set(section.name, key.name, *key.value);
    }
  }
  return document.Text() == stored;
}

}  // namespace lorvane
