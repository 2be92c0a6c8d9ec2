#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// A picture that a screen script asks for in a comment:
///
///     # picture NAME                of the window in front
///     # picture NAME of frmMain     of that window, open or not
///     # picture NAME of manual      of the manual's own window
///     # page NAME 2                 of that page of the report in front, from 1
struct WantedPicture {
  enum class Kind { kWindow, kManual, kPage };

  Kind kind = Kind::kWindow;
  /// The file's name without its ending.
  std::string name;
  /// The screen's name; empty for the one in front.
  std::string screen;
  int page = 1;
};

/// A screen script with the pictures to be made on its way.
struct PictureScript {
  /// The file, for messages.
  std::string name;
  std::string text;
  /// By the line of the script that is carried out just before.
  std::map<int, std::vector<WantedPicture>> pictures;
};

/// The pictures that the comments of a script ask for. Raises 51 with the line named when a comment
/// that begins so isn't understood, or stands before the first step.
[[nodiscard]] PictureScript ReadPictureScript(std::string name, std::string text);

/// The scripts of a page of the manual: its ```text blocks that begin with "# NAME.txt", in order.
/// Another file is a script as a whole.
[[nodiscard]] std::vector<PictureScript> ReadPictureScripts(const std::string& path);

}  // namespace lorvane
