#include "services/errors/console_error_object.h"

#include <iostream>

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

void ConsoleErrorObject::showError() {
  std::ostream& out = *out_;
  out << "Error " << number_ << ": " << description_ << "\n";
  if (!source_.empty()) out << "  source: " << source_ << "\n";
  out << "  trace:\n";
  for (auto it = recordedStack_.rbegin(); it != recordedStack_.rend(); ++it) {
    out << "    " << *it << "\n";
  }
  out.flush();
}

}  // namespace qb
