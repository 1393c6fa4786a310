#include "services/controls/platform.h"

#include <algorithm>

#include "services/controls/form.h"
#include "services/controls/menu_item.h"

namespace qb {

namespace {

struct PlatformState {
  Screen screen;
  std::function<void()> pump;
  int32_t doEventsCalls = 0;
  std::function<int32_t(const WindowMessage&)> router;
  std::vector<WindowMessage> messages;
  PopupMenuHandler popupHandler;
  std::vector<PopupRequest> popups;
  FormService formService;
  std::vector<std::string> modalForms;
  int64_t nextHandle = 0x10000;
  Control* focused = nullptr;
  bool userMode = true;
};

PlatformState& state() {
  thread_local PlatformState s;
  return s;
}

}  // namespace

void Screen::setMousePointer(int16_t value) {
  mousePointer_ = value;
  history_.push_back(value);
  auto observers = observers_;  // an observer may remove itself
  for (auto& [id, observer] : observers) observer(value);
}

int32_t Screen::addObserver(std::function<void(int16_t)> observer) {
  observers_.emplace_back(nextId_, std::move(observer));
  return nextId_++;
}

void Screen::removeObserver(int32_t id) {
  std::erase_if(observers_, [id](const auto& entry) { return entry.first == id; });
}

Screen& screen() { return state().screen; }

int32_t DoEvents() {
  auto& s = state();
  ++s.doEventsCalls;
  if (s.pump) {
    auto pump = s.pump;  // the pump may install another one while it runs
    pump();
  }
  return 0;
}

void installEventPump(std::function<void()> pump) { state().pump = std::move(pump); }
int32_t doEventsCount() { return state().doEventsCalls; }

int32_t SendMessageA(int64_t hWnd, int32_t msg, int32_t wParam, int32_t lParam) {
  auto& s = state();
  WindowMessage message{hWnd, msg, wParam, lParam};
  s.messages.push_back(message);
  return s.router ? s.router(message) : 0;
}

void installMessageRouter(std::function<int32_t(const WindowMessage&)> router) {
  state().router = std::move(router);
}
const std::vector<WindowMessage>& sentMessages() { return state().messages; }

void PopupMenu(MenuItem& menu, int32_t flags, std::optional<float> x, std::optional<float> y) {
  auto& s = state();
  s.popups.push_back(PopupRequest{menu.Name(), flags, x, y});
  if (s.popupHandler) {
    auto handler = s.popupHandler;
    handler(menu, flags, x, y);
  }
}

void installPopupMenuHandler(PopupMenuHandler handler) {
  state().popupHandler = std::move(handler);
}
const std::vector<PopupRequest>& popupRequests() { return state().popups; }

void installFormService(FormService service) { state().formService = std::move(service); }

void runModalForm(Form& form, OwnerForm* owner) {
  auto& s = state();
  s.modalForms.push_back(form.Name());
  if (s.formService) {
    auto service = s.formService;  // a form may show another one
    service(form, owner);
  }
}

const std::vector<std::string>& modalForms() { return state().modalForms; }

int64_t newWindowHandle() { return state().nextHandle += 4; }

Control* focusedControl() { return state().focused; }

bool ambientUserMode() { return state().userMode; }
void setAmbientUserMode(bool userMode) { state().userMode = userMode; }

void resetPlatform() {
  auto& s = state();
  int64_t handles = s.nextHandle;
  s = PlatformState{};
  s.nextHandle = handles;
}

namespace platform_internal {
void setFocused(Control* control) { state().focused = control; }
}  // namespace platform_internal

}  // namespace qb
