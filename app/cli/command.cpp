#include "app/cli/command.h"

#include <charconv>

namespace qb::cli {

std::vector<Command>& commandRegistry() {
  static std::vector<Command> registry;
  return registry;
}

std::string Arguments::value(const std::string& name, const std::string& fallback) const {
  auto it = values_.find(name);
  return it == values_.end() ? fallback : it->second;
}

int32_t Arguments::id(const std::string& name, int32_t fallback) const {
  auto it = values_.find(name);
  if (it == values_.end()) return fallback;
  const std::string& text = it->second;
  int32_t result = 0;
  auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), result);
  if (ec != std::errc() || end != text.data() + text.size() || text.empty()) {
    throw UsageError("--" + name + " takes a whole number, not '" + text + "'");
  }
  return result;
}

int32_t Arguments::requiredId(const std::string& name) const {
  if (!values_.count(name)) throw UsageError("--" + name + " is required");
  return id(name, -1);
}

std::string Arguments::required(const std::string& name) const {
  if (!values_.count(name)) throw UsageError("--" + name + " is required");
  return value(name);
}

}  // namespace qb::cli
