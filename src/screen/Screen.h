#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screen/Control.h"
#include "screen/ScreenContext.h"

namespace lorvane {

/// A window as a plain object that works with no display: it owns named controls, reacts to what
/// happens to them, asks its questions through ScreenServices, and reads and writes the tables.
///
/// A front shows a screen with ScreenServices::ShowModal, which runs Load and Activate and ends
/// when the screen is closed. Close() asks QueryUnload, which may refuse, and then runs Unload.
class Screen {
 public:
  Screen(ScreenContext context, std::string name, std::string caption);
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen() = default;

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);

  [[nodiscard]] const std::vector<Control*>& Controls() const { return controls_; }
  /// The control of that name, without regard to case; null when there is none.
  [[nodiscard]] Control* Find(std::string_view name) const;

  // Life, as a front runs it.
  virtual void Load() {}
  /// The screen comes to the front.
  virtual void Activate() {}
  /// False refuses the closing.
  [[nodiscard]] virtual bool QueryUnload() { return true; }
  virtual void Unload() {}
  /// Closes unless QueryUnload refuses; true when closed.
  bool Close();
  [[nodiscard]] bool IsClosed() const { return closed_; }

  // The focus.
  [[nodiscard]] Control* Focus() const { return focus_; }
  /// The control that had the focus is asked to let go; true when `control` has it afterwards, or
  /// takes none.
  bool MoveFocus(Control& control);
  /// Sets the focus by code: nobody is asked.
  void SetFocus(Control& control);
  /// On to the next control where the Tab key stops, and from the last to the first. The
  /// tab page on which it lies comes to the front.
  void FocusNext();
  /// The same, backwards.
  void FocusPrevious();

  /// A key on the control with the focus, or on a given one: the screen sees it first. Tab
  /// moves the focus and is no key of the control's. Enter and Escape that nobody takes press the
  /// default and the cancel button. True when the key was taken.
  bool UserKey(Control& control, int key);

  /// A public property or state as text, as scripts and callers read it; nothing when there is none
  /// of that name.
  [[nodiscard]] virtual std::optional<std::string> Property(std::string_view name) const;
  /// Sets a public property before the screen is shown; false when there is none of that name.
  virtual bool SetProperty(std::string_view name, std::string_view value);
  /// Runs a public operation that other subsystems know by name; false when there is none.
  virtual bool Call(std::string_view operation);

  /// The screen's place and inner size, in a front's own units.
  struct Geometry {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
  };
  Geometry Place;
  bool Minimised = false;

  /// Called after the caption, the place or the focus has changed: a front follows then.
  std::function<void()> OnPropertyChanged;
  /// Called once when the screen has been closed.
  std::function<void()> OnClosed;
  /// Asks the front to open a pop-up menu of this screen at the pointer.
  std::function<void(Control& menu)> OnPopUp;

  [[nodiscard]] ScreenContext& Context() { return context_; }

 protected:
  /// A key before any control sees it; setting it to key_code::kNone swallows it.
  virtual void KeyPreview(int& key);
  void PopUp(Control& menu) const;

  ScreenContext context_;

 private:
  friend class Control;
  void Register(Control& control);
  void Forget(const Control& control);
  void TurnToPageOf(const Control& control);
  template <typename Iterator>
  void FocusAfter(Iterator begin, Iterator end);
  [[nodiscard]] bool PressButtonFor(int key) const;

  std::string name_;
  std::string caption_;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
  bool closed_ = false;
};

}  // namespace lorvane
