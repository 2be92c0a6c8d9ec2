#include "screen/ScreenHost.h"

#include <algorithm>

#include "basic/Text.h"

namespace lorvane {

std::unique_ptr<Screen> ScreenRegistry::Make(std::string_view name, ScreenContext context) const {
  const auto found = factories_.find(name);
  return found == factories_.end() ? nullptr : found->second(context);
}

std::vector<std::string> ScreenRegistry::Names() const {
  std::vector<std::string> names;
  for (const auto& [name, factory] : factories_) {
    names.push_back(name);
  }
  return names;
}

ScreenHost::ScreenHost(Session& session, const ScreenRegistry& registry)
    : session_(&session), registry_(&registry) {}

void ScreenHost::Show(Screen& screen) {
  open_.push_back(&screen);
  try {
    screen.Load();
    if (!screen.IsClosed()) {
      screen.Activate();
    }
  } catch (...) {
    Forget(screen);
    throw;
  }
}

void ScreenHost::ShowModal(Screen& screen) {
  Show(screen);
  try {
    if (!screen.IsClosed()) {
      RunModal(screen);
    }
  } catch (...) {
    Forget(screen);
    throw;
  }
  Forget(screen);
  if (Screen* behind = ActiveScreen()) {
    behind->Activate();
  }
}

bool ScreenHost::OpenScreen(std::string_view name, const ScreenArguments& arguments) {
  const std::unique_ptr<Screen> screen = registry_->Make(name, Context());
  if (screen == nullptr) {
    return false;
  }
  for (const auto& [property, value] : arguments) {
    screen->SetProperty(property, value);
  }
  ShowModal(*screen);
  return true;
}

bool ScreenHost::OpenModeless(std::string_view name) {
  std::erase_if(modeless_, [](const auto& screen) { return screen->IsClosed(); });
  if (Screen* open = FindScreen(name)) {
    std::rotate(std::find(open_.begin(), open_.end(), open),
                std::find(open_.begin(), open_.end(), open) + 1, open_.end());
    open->Activate();
    ShowModeless(*open);
    return true;
  }
  std::unique_ptr<Screen> screen = registry_->Make(name, Context());
  if (screen == nullptr) {
    return false;
  }
  Show(*screen);
  // One that closed itself while it was loaded is gone already.
  if (screen->IsClosed()) {
    Forget(*screen);
    return true;
  }
  Screen& shown = *screen;
  shown.OnClosed = [this, &shown] { EndModeless(shown); };
  modeless_.push_back(std::move(screen));
  ShowModeless(shown);
  return true;
}

void ScreenHost::EndModeless(Screen& screen) {
  const bool inFront = ActiveScreen() == &screen;
  Forget(screen);
  HideModeless(screen);
  if (Screen* behind = ActiveScreen(); inFront && behind != nullptr) {
    behind->Activate();
  }
}

Screen* ScreenHost::FindScreen(std::string_view name) const {
  const auto found = std::find_if(open_.rbegin(), open_.rend(), [&](const Screen* screen) {
    return EqualsNoCase(screen->Name(), name);
  });
  return found == open_.rend() ? nullptr : *found;
}

Screen* ScreenHost::ActiveScreen() const { return open_.empty() ? nullptr : open_.back(); }

void ScreenHost::Forget(const Screen& screen) {
  open_.erase(std::remove(open_.begin(), open_.end(), &screen), open_.end());
}

}  // namespace lorvane
