#include "services/controls/property_bag.h"

namespace qb {

void PropertyBag::WriteProperty(const std::string& name, const Variant& value,
                                const Variant& defaultValue) {
  writes_.push_back(Write{name, value, defaultValue});
}

void PropertyBag::WriteObject(const std::string& name, Control* object) {
  Write write{name, Variant(), Variant()};
  write.isObject = true;
  write.object = object;
  writes_.push_back(write);
}

const PropertyBag::Write* PropertyBag::stored(const std::string& name) const {
  // The last write of a name counts.
  for (auto it = writes_.rbegin(); it != writes_.rend(); ++it) {
    if (it->name == name) return &*it;
  }
  return nullptr;
}

bool PropertyBag::isStored(const std::string& name) const {
  const Write* write = stored(name);
  if (!write) return false;
  return write->isObject ? write->object != nullptr : !(write->value == write->defaultValue);
}

Variant PropertyBag::ReadProperty(const std::string& name, const Variant& defaultValue) const {
  const Write* write = stored(name);
  if (!write || write->isObject || write->value == write->defaultValue) return defaultValue;
  return write->value;
}

Control* PropertyBag::ReadObject(const std::string& name) const {
  const Write* write = stored(name);
  return write && write->isObject ? write->object : nullptr;
}

}  // namespace qb
