#pragma once
// Event<void(Args...)>: an event of a control. The owner of the control sets
// the handler like a std::function (tree.MouseUp = [&](...) {...}); the GUI or
// a test raises the event with raise(...), which does nothing when no handler
// is set. Arguments the platform passes by reference (an OLE effect, a key)
// are declared as references and reach the handler as such.

#include <functional>
#include <utility>

namespace qb {

template <class Signature>
class Event;

template <class... Args>
class Event<void(Args...)> : public std::function<void(Args...)> {
 public:
  using Handler = std::function<void(Args...)>;
  using Handler::Handler;
  using Handler::operator=;

  // Calls the handler when one is set; otherwise nothing happens.
  void raise(Args... args) const {
    if (*this) (*this)(std::forward<Args>(args)...);
  }
};

}  // namespace qb
