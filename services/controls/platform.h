#pragma once
// The platform a control runs on, per thread: the screen's mouse pointer, the
// event pump, window messages, pop-up menus, window handles, the keyboard
// focus and the container's ambient run mode. The GUI installs real services
// (a busy cursor, processEvents, a real menu); tests install callbacks that
// act as the user and read what was recorded. resetPlatform() puts everything
// back to its start state.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace qb {

class Control;
class Form;
class MenuItem;
class OwnerForm;

// The screen: its mouse pointer (0 default, 11 busy), observable.
class Screen {
 public:
  int16_t MousePointer() const { return mousePointer_; }
  // Sets the pointer, records the value and tells the observers.
  void setMousePointer(int16_t value);
  // Every value set, in order (for tests).
  const std::vector<int16_t>& pointerHistory() const { return history_; }
  // Called with the new pointer after each set; returns an id.
  int32_t addObserver(std::function<void(int16_t)> observer);
  void removeObserver(int32_t id);

 private:
  int16_t mousePointer_ = 0;
  std::vector<int16_t> history_;
  int32_t nextId_ = 1;
  std::vector<std::pair<int32_t, std::function<void(int16_t)>>> observers_;
};

// A message sent with SendMessageA.
struct WindowMessage {
  int64_t hWnd = 0;
  int32_t msg = 0;
  int32_t wParam = 0;
  int32_t lParam = 0;
};

// A pop-up menu shown with PopupMenu.
struct PopupRequest {
  std::string menuName;
  int32_t flags = 0;
  std::optional<float> x;  // twips; none = at the mouse position
  std::optional<float> y;
};

using PopupMenuHandler = std::function<void(MenuItem& menu, int32_t flags, std::optional<float> x,
                                            std::optional<float> y)>;

// This thread's screen.
Screen& screen();

// The event pump: runs the installed pump (the GUI processes pending events;
// a test may act as a user clicking during a long loop) and counts the call.
// The pump may re-enter the code that called DoEvents, as on the platform;
// a pump that calls DoEvents again must guard itself. Returns 0.
int32_t DoEvents();
void installEventPump(std::function<void()> pump);
int32_t doEventsCount();

// Sends a window message: records it, then hands it to the installed router
// when there is one and returns its result; without one returns 0.
int32_t SendMessageA(int64_t hWnd, int32_t msg, int32_t wParam, int32_t lParam);
void installMessageRouter(std::function<int32_t(const WindowMessage&)> router);
const std::vector<WindowMessage>& sentMessages();

// Shows a pop-up menu: records the request, then runs the installed handler,
// which shows the menu and may call click() on the chosen item before it
// returns. Without a handler nothing is shown. flags 8: right-aligned.
void PopupMenu(MenuItem& menu, int32_t flags = 0, std::optional<float> x = std::nullopt,
               std::optional<float> y = std::nullopt);
void installPopupMenuHandler(PopupMenuHandler handler);
const std::vector<PopupRequest>& popupRequests();

// Modal forms: the installed service shows the form and returns when the
// user is done with it (the GUI runs a dialog until the form hides; a test
// acts as the user). Without a service runModalForm returns at once.
using FormService = std::function<void(Form& form, OwnerForm* owner)>;
void installFormService(FormService service);
void runModalForm(Form& form, OwnerForm* owner);
// Every form shown modally, by name, in order (for tests).
const std::vector<std::string>& modalForms();

// A fresh window handle, distinct from all others given out on this thread.
int64_t newWindowHandle();

// The control that has the keyboard focus, or nullptr.
Control* focusedControl();

// The container's ambient run mode: True when the host runs, False in a form
// designer. User controls read it when their properties are read.
bool ambientUserMode();
void setAmbientUserMode(bool userMode);

// Puts the platform of this thread back to its start state: pointer 0, no
// pump, router, handler or form service, nothing recorded, no focus, run mode True. Window
// handles keep counting, so they stay distinct.
void resetPlatform();

namespace platform_internal {
// Focus bookkeeping for Control (SetFocus and destruction).
void setFocused(Control* control);
}  // namespace platform_internal

}  // namespace qb
