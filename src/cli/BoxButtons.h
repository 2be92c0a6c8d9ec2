#pragma once

#include <string>

namespace lorvane {

/// Whether a message box of these flags has the button of that answer.
[[nodiscard]] bool OffersButton(int flags, int given);
/// The answer that lets nothing happen: No where the box offers it, else Cancel.
[[nodiscard]] int RefusalOf(int flags);
/// The answer that goes on: Yes where the box offers it, else OK.
[[nodiscard]] int ConsentTo(int flags);
/// "Yes", "No", "Cancel" or "OK".
[[nodiscard]] std::string ButtonName(int given);

}  // namespace lorvane
