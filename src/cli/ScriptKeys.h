#pragma once

#include <string_view>
#include <vector>

#include "cli/ScriptParser.h"
#include "screen/Screen.h"

namespace lorvane {

/// The keys that type a text, a character each; a line break is Enter.
[[nodiscard]] std::vector<int> KeysOfText(std::string_view text);
/// The key of a name (Enter, Escape, Tab, Backspace), or the keys of a text in quotes. Raises
/// ScriptFailure for another name.
[[nodiscard]] std::vector<int> KeysOfWord(const ScriptWord& word);

/// Presses the keys in turn on a control, until its screen is closed.
void PressKeys(Screen& screen, Control& control, const std::vector<int>& keys);

}  // namespace lorvane
