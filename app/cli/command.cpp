#include "app/cli/command.h"

#include <charconv>

namespace qb::cli {

namespace {

// The option's text as a 32-bit whole number; throws UsageError naming the
// flag and the value, with what the value is too big or too small for.
int32_t wholeNumber(const std::string& name, const std::string& text, const char* what) {
  int32_t result = 0;
  auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), result);
  bool allRead = end == text.data() + text.size() && !text.empty();
  if (ec == std::errc::result_out_of_range && allRead) {
    bool negative = text.front() == '-';
    throw UsageError("--" + name + " " + text + " is too " + (negative ? "small" : "big") +
                     " for " + what);
  }
  if (ec != std::errc() || !allRead) {
    throw UsageError("--" + name + " takes a whole number, not '" + text + "'");
  }
  return result;
}

}  // namespace

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
  return it == values_.end() ? fallback : wholeNumber(name, it->second, "an id");
}

int32_t Arguments::requiredId(const std::string& name) const {
  if (!values_.count(name)) throw UsageError("--" + name + " is required");
  return id(name, -1);
}

int32_t Arguments::number(const std::string& name, int32_t fallback) const {
  auto it = values_.find(name);
  return it == values_.end() ? fallback : wholeNumber(name, it->second, "a 32-bit number");
}

std::string Arguments::required(const std::string& name) const {
  if (!values_.count(name)) throw UsageError("--" + name + " is required");
  return value(name);
}

}  // namespace qb::cli
