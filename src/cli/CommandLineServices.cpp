#include "cli/CommandLineServices.h"

#include <algorithm>
#include <array>
#include <istream>
#include <ostream>
#include <utility>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "cli/BoxButtons.h"

namespace lorvane {

CommandLineServices::CommandLineServices(Session& session, const ScreenRegistry& registry,
                                         Console console, Clock clock, bool assumeYes)
    : ScreenHost(session, registry),
      console_(console),
      clock_(std::move(clock)),
      assumeYes_(assumeYes) {}

void CommandLineServices::OnModal(const std::string& screenName,
                                  std::function<void(Screen&)> handler) {
  modalHandlers_[ToLower(screenName)] = std::move(handler);
}

int CommandLineServices::MsgBox(const std::string& text, int flags, const std::string& title) {
  const auto teller = tellers_.find(title);
  if (teller == tellers_.end() || !teller->second(text)) {
    PrintBox(title, text);
  }
  if (!box::IsQuestion(flags)) {
    return answer::kOk;
  }
  if (assumeYes_) {
    return ConsentTo(flags);
  }
  if (console_.interactive) {
    return AskButton(flags);
  }
  refusedUnasked_ = true;
  return RefusalOf(flags);
}

std::string CommandLineServices::InputBox(const std::string& prompt, const std::string& title,
                                          const std::string& proposal) {
  const auto prepared = inputs_.find(title);
  return prepared != inputs_.end() ? prepared->second : AskText(title, prompt, proposal);
}

std::string CommandLineServices::AskForFile(const FileDialog& dialog) {
  return AskText(dialog.title, dialog.filter, "");
}

ShellResult CommandLineServices::RunShell(const ShellRequest& request) {
  throw RuntimeError(error_number::kFileNotFound, "'" + request.file + "' can't be started here.");
}

void CommandLineServices::ShowHelp() { throw RuntimeError(error_number::kHelpNotAvailable); }

void CommandLineServices::RunModal(Screen& screen) {
  const auto found = modalHandlers_.find(ToLower(screen.Name()));
  if (found != modalHandlers_.end()) {
    found->second(screen);
  }
  // A screen that refuses is left all the same: nobody is there to work on it.
  screen.Close();
}

void CommandLineServices::PrintBox(const std::string& title, const std::string& text) const {
  console_.err << '[' << OnOneLine(title) << "] " << OnOneLine(text) << std::endl;
}

std::optional<std::string> CommandLineServices::ReadLine() const {
  std::string line;
  if (!std::getline(console_.in, line)) {
    return std::nullopt;
  }
  return line;
}

int CommandLineServices::AskButton(int flags) const {
  std::string offered;
  std::array buttons{answer::kYes, answer::kNo, answer::kOk, answer::kCancel};
  const auto end = std::remove_if(buttons.begin(), buttons.end(),
                                  [&](int button) { return !OffersButton(flags, button); });
  for (auto button = buttons.begin(); button != end; ++button) {
    offered += (offered.empty() ? "" : "/") + ButtonName(*button);
  }
  while (true) {
    console_.err << offered << "? " << std::flush;
    const std::optional<std::string> line = ReadLine();
    if (!line) {
      console_.err << std::endl;
      return RefusalOf(flags);
    }
    // The beginning of a button's name will do.
    const std::string typed = ToLower(Trim(*line));
    const auto meant = std::find_if(buttons.begin(), end, [&](int button) {
      return !typed.empty() && ToLower(ButtonName(button)).rfind(typed, 0) == 0;
    });
    if (meant != end) {
      return *meant;
    }
  }
}

std::string CommandLineServices::AskText(const std::string& title, const std::string& prompt,
                                         const std::string& proposal) const {
  PrintBox(title, prompt);
  if (!console_.interactive) {
    return {};
  }
  console_.err << (proposal.empty() ? std::string() : "[" + proposal + "] ") << "> " << std::flush;
  const std::optional<std::string> line = ReadLine();
  if (!line) {
    console_.err << std::endl;
    return {};
  }
  return line->empty() ? proposal : *line;
}

}  // namespace lorvane
