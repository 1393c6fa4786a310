#pragma once
// The error object the host hands in (errorClass): the trace stack of
// procedure names and the report of a failure to the user, whose decision
// errorResponse gives:
//   1 go on with the next step, 2 leave the procedure, 3 ExitProgram then
//   leave, anything else leave.

#include <cstdint>
#include <string>

#include "services/errors/runtime_error.h"

namespace qb {

class ErrorObject {
 public:
  virtual ~ErrorObject() = default;
  virtual void pushProcedureName(const std::string& name) = 0;
  virtual void popProcedureName() = 0;
  // Takes number, description and source of the current failure.
  virtual void recordError(const RuntimeError& error) = 0;
  // Reports the recorded failure to the user, with the trace stack.
  virtual void showError() = 0;
  virtual int32_t errorResponse() = 0;
};

}  // namespace qb
