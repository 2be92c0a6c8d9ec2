#include "cli/ScriptKeys.h"

#include <algorithm>
#include <array>
#include <string>

#include "basic/Text.h"
#include "cli/ScriptErrors.h"

namespace lorvane {
namespace {

struct NamedKey {
  std::string_view name;
  int key;
};

constexpr std::array kNamedKeys{
    NamedKey{"Enter", key_code::kEnter},
    NamedKey{"Escape", key_code::kEscape},
    NamedKey{"Tab", key_code::kTab},
    NamedKey{"Backspace", key_code::kBackspace},
};

// The code point of one UTF-8 character.
int KeyOfCharacter(std::string_view character) {
  const auto lead = static_cast<unsigned char>(character.front());
  if (character.size() == 1) {
    return lead;
  }
  constexpr unsigned kTailBits = 6;
  unsigned code = lead & (0x7FU >> character.size());
  for (const char tail : character.substr(1)) {
    code = (code << kTailBits) | (static_cast<unsigned char>(tail) & 0x3FU);
  }
  return static_cast<int>(code);
}

}  // namespace

std::vector<int> KeysOfText(std::string_view text) {
  std::vector<int> keys;
  for (const std::string& character : Characters(text)) {
    keys.push_back(character == "\n" ? key_code::kEnter : KeyOfCharacter(character));
  }
  return keys;
}

std::vector<int> KeysOfWord(const ScriptWord& word) {
  if (word.quoted) {
    return KeysOfText(word.text);
  }
  const auto* found = std::find_if(kNamedKeys.begin(), kNamedKeys.end(),
                                   [&](const NamedKey& key) { return key.name == word.text; });
  if (found == kNamedKeys.end()) {
    throw ScriptFailure{"there is no key " + word.text};
  }
  return {found->key};
}

void PressKeys(Screen& screen, Control& control, const std::vector<int>& keys) {
  for (const int key : keys) {
    if (screen.IsClosed()) {
      return;
    }
    screen.UserKey(control, key);
  }
}

}  // namespace lorvane
