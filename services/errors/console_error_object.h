#pragma once
// The command-line host's error object: keeps the trace stack and writes a
// recorded failure with its trace to a stream (standard error by default).
// Its response is fixed (2, leave the procedure, by default). failureCount()
// lets the host exit with a non-zero status when anything failed.

#include <iosfwd>
#include <string>
#include <vector>

#include "services/errors/error_object.h"

namespace qb {

class ConsoleErrorObject : public ErrorObject {
 public:
  explicit ConsoleErrorObject(std::ostream* out = nullptr, int32_t response = 2);

  void pushProcedureName(const std::string& name) override;
  void popProcedureName() override;
  void recordError(const RuntimeError& error) override;
  void showError() override;
  int32_t errorResponse() override { return response_; }

  int failureCount() const { return failures_; }
  const std::vector<std::string>& traceStack() const { return stack_; }

 private:
  std::ostream* out_;
  int32_t response_;
  std::vector<std::string> stack_;
  std::vector<std::string> recordedStack_;
  int32_t number_ = 0;
  std::string description_;
  std::string source_;
  int failures_ = 0;
};

}  // namespace qb
