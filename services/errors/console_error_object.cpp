#include "services/errors/console_error_object.h"

#include <algorithm>
#include <iostream>
#include <iterator>

namespace qb {

ConsoleErrorObject::ConsoleErrorObject(std::ostream* out, int32_t response)
    : out_(out != nullptr ? out : &std::cerr), response_(response) {}

void ConsoleErrorObject::pushProcedureName(const std::string& name) { stack_.push_back(name); }

void ConsoleErrorObject::popProcedureName() {
  if (!stack_.empty()) stack_.pop_back();
}

void ConsoleErrorObject::recordError(const RuntimeError& error) {
  number_ = error.number();
  description_ = error.description();
  source_ = error.source();
  recordedStack_ = stack_;
  ++failures_;
}

// The failure's first line says what happened and what to do; the rest of
// its description, the source and the trace stack (innermost first, a run of
// one name, as a recursion leaves it, written once with its count) follow.
void ConsoleErrorObject::showError() {
  std::ostream& out = *out_;
  size_t lineEnd = description_.find('\n');
  out << "Error " << number_ << ": " << description_.substr(0, lineEnd) << "\n";
  while (lineEnd != std::string::npos) {
    size_t next = description_.find('\n', lineEnd + 1);
    out << "  " << description_.substr(lineEnd + 1, next - lineEnd - 1) << "\n";
    lineEnd = next;
  }
  if (!source_.empty()) out << "  source: " << source_ << "\n";
  out << "  trace:\n";
  for (auto it = recordedStack_.rbegin(); it != recordedStack_.rend();) {
    auto runEnd = std::find_if(it, recordedStack_.rend(),
                               [&](const std::string& name) { return name != *it; });
    auto count = std::distance(it, runEnd);
    out << "    " << *it;
    if (count > 1) out << " (" << count << " times)";
    out << "\n";
    it = runEnd;
  }
  out.flush();
}

}  // namespace qb
