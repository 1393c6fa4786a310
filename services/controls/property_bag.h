#pragma once
// PropertyBag: where a user control keeps its design-time properties between
// sessions. WriteProperty records each write in order with its default and
// stores the value only when it differs from the default; ReadProperty gives
// the stored value or, when none was stored, the default. Object properties
// (a neighbour control) are kept by reference.

#include <string>
#include <vector>

#include "services/runtime/variant.h"

namespace qb {

class Control;

class PropertyBag {
 public:
  // One write, in the order made.
  struct Write {
    std::string name;
    Variant value;
    Variant defaultValue;
    bool isObject = false;
    Control* object = nullptr;
  };

  void WriteProperty(const std::string& name, const Variant& value, const Variant& defaultValue);
  // The stored value, or defaultValue when the name was not stored.
  Variant ReadProperty(const std::string& name, const Variant& defaultValue = Variant()) const;
  // Object properties; an object property that was never written reads nullptr.
  void WriteObject(const std::string& name, Control* object);
  Control* ReadObject(const std::string& name) const;

  // Every write, in order (names and defaults as written).
  const std::vector<Write>& writes() const { return writes_; }
  // True when a value (not a default) is stored under name.
  bool isStored(const std::string& name) const;

 private:
  const Write* stored(const std::string& name) const;
  std::vector<Write> writes_;
};

}  // namespace qb
