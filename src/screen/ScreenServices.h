#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "basic/Date.h"

namespace lorvane {

class ReportPainter;
class Screen;

/// Flags of a message box: an icon, and which buttons it offers besides OK alone.
namespace box {

inline constexpr int kPlain = 0;
inline constexpr int kOkCancel = 1;
inline constexpr int kYesNoCancel = 3;
inline constexpr int kYesNo = 4;
inline constexpr int kButtonMask = 7;
inline constexpr int kCritical = 16;
inline constexpr int kQuestion = 32;
inline constexpr int kExclamation = 48;
inline constexpr int kInformation = 64;

/// Whether the box asks something, so that an answer is needed.
[[nodiscard]] constexpr bool IsQuestion(int flags) { return (flags & kButtonMask) != 0; }

}  // namespace box

/// Answers of a message box.
namespace answer {

inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;

}  // namespace answer

/// Shapes of the mouse pointer.
namespace pointer {

inline constexpr int kDefault = 0;
inline constexpr int kHourglass = 11;

}  // namespace pointer

/// A dialog that asks for the name of a file.
struct FileDialog {
  std::string title;
  /// Pairs of a description and a pattern: "Data files(*.mdb)|*.mdb".
  std::string filter;
  /// Where the dialog starts: a folder, or a file's path.
  std::string start;
  /// A file that isn't there yet can be named.
  bool newFile = false;
};

/// How the windows inside the main window are arranged; the numbers are the system's own.
enum class WindowArrangement { kCascade = 0, kHorizontal = 1, kVertical = 2, kIcons = 3 };

/// What to hand to the platform's shell.
struct ShellRequest {
  std::string verb;
  std::string file;
  std::string parameters;
  std::string folder;
  int showMode = 1;
};

/// The shell's code, 33 or above for success, and the handle of the process started, 0 for none.
struct ShellResult {
  int code = 0;
  int process = 0;
};

/// Thrown through everything when the program ends at once, without closing any screen. Fronts
/// catch it where they call a screen, and leave with the status.
struct ProgramEnded {
  int exitStatus = 0;
};

using ScreenArguments = std::vector<std::pair<std::string, std::string>>;

/// The only way out of a screen: questions, files, the pointer, other screens, the clock. Fronts
/// and tests implement it.
class ScreenServices {
 public:
  /// The title of a box that states none.
  static constexpr const char* kProgramName = "Lorvane";

  ScreenServices() = default;
  ScreenServices(const ScreenServices&) = delete;
  ScreenServices& operator=(const ScreenServices&) = delete;
  virtual ~ScreenServices() = default;

  /// Shows a text and gives the answer. See `box` and `answer`.
  virtual int MsgBox(const std::string& text, int flags = box::kPlain,
                     const std::string& title = kProgramName) = 0;
  /// Asks for a text; the empty text when the user cancels.
  [[nodiscard]] virtual std::string InputBox(const std::string& prompt, const std::string& title,
                                             const std::string& proposal = {}) = 0;
  /// Asks for a file; the empty text when the user cancels.
  [[nodiscard]] virtual std::string AskForFile(const FileDialog& dialog) = 0;

  [[nodiscard]] virtual int Pointer() const = 0;
  virtual void SetPointer(int shape) = 0;
  virtual void Beep() = 0;
  /// The present date and time: the one clock of the program.
  [[nodiscard]] virtual DateTime Now() const = 0;

  /// Loads and shows a screen, and comes back when it is closed.
  virtual void ShowModal(Screen& screen) = 0;
  /// Shows another subsystem's screen by its name, with its public properties set first. False when
  /// there is no screen of that name.
  virtual bool OpenScreen(std::string_view name, const ScreenArguments& arguments = {}) = 0;
  /// Shows a screen by its name beside the others and comes back at once; one that is open already
  /// comes to the front. False when there is no screen of that name.
  virtual bool OpenModeless(std::string_view name) = 0;
  /// The open screen of that name; null when it isn't open.
  [[nodiscard]] virtual Screen* FindScreen(std::string_view name) const = 0;
  /// The screen in front; null when none is open.
  [[nodiscard]] virtual Screen* ActiveScreen() const = 0;
  virtual void ArrangeWindows(WindowArrangement arrangement) = 0;

  /// Raises 53 when the program or document can't be found.
  virtual ShellResult RunShell(const ShellRequest& request) = 0;
  [[nodiscard]] virtual bool IsRunning(int process) const = 0;
  /// Shows the manual. Raises 48 when there is no way to show it.
  virtual void ShowHelp() = 0;
  /// What paints and prints reports; null for a front that has neither fonts nor printers.
  [[nodiscard]] virtual ReportPainter* Painter() { return nullptr; }
};

}  // namespace lorvane
