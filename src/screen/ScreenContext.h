#pragma once

namespace lorvane {

class ScreenServices;
class Session;

/// What every screen is handed: the session's state, and its way out to the user.
struct ScreenContext {
  Session& session;
  ScreenServices& services;
};

}  // namespace lorvane
