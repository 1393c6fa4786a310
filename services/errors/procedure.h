#pragma once
// Procedure: the tracing convention every procedure of the system follows,
// written once. A procedure creates one first thing with its trace name
// ("Orvanta.exe-<object>-<procedure>"); the object pushes the name on the
// module's error object and pops it when the procedure ends.
//
// The procedure's body runs as steps. A failure (any exception) inside a step
// goes to the handler: recordError, showError, then errorResponse decides:
//   1  go on with the next step;
//   2  leave: every later step is skipped;
//   3  ExitProgram, then leave;
//   other  leave.
// Without an error object the handler leaves by the normal end, silently.
// A step is the smallest unit after which going on makes sense.
//
//   Procedure proc("Orvanta.exe-modDatabaseFunctions-getCompanyNameFromCompanyID");
//   std::string result;
//   proc.step([&] { ... });
//   return result;
//
// Resume mode (Procedure::Mode::Resume) ignores failures: the next step runs
// and nothing is reported, as for the service-object accessors and Initialize.
// ignoreError(n) passes over failures of that number without a report and goes
// on, as populateClientDocumentCategories does with 3021.
//
// No exception leaves step(): a public operation built on Procedure never
// throws.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "services/errors/runtime_error.h"

namespace qb {

class ErrorObject;

// The program exit hook: has no body in this library.
void ExitProgram();

class Procedure {
 public:
  enum class Mode { Handle, Resume };

  explicit Procedure(std::string traceName, Mode mode = Mode::Handle);
  ~Procedure();
  Procedure(const Procedure&) = delete;
  Procedure& operator=(const Procedure&) = delete;

  // Runs one step unless the procedure is leaving. Returns true when the step
  // ran to its end without a failure.
  bool step(const std::function<void()>& body);

  // Passes over failures with this error number: no report, the next step runs.
  void ignoreError(int32_t number) { ignored_.push_back(number); }

  // True once a failure made the procedure leave; later steps are skipped.
  bool leaving() const { return leaving_; }
  // Makes every later step be skipped (a procedure's own early exit).
  void leave() { leaving_ = true; }
  // True when any step failed (whatever the response).
  bool failed() const { return failed_; }
  const std::string& traceName() const { return traceName_; }

 private:
  void handle(const RuntimeError& error);

  std::string traceName_;
  Mode mode_;
  ErrorObject* errorObject_ = nullptr;  // the module's, taken at entry
  bool leaving_ = false;
  bool failed_ = false;
  std::vector<int32_t> ignored_;
};

// Tells whether a failure was reported (to the error object, and so to the
// user) on this thread since the watch began, in whatever procedure. A
// procedure that composes a text through others and then stores it asks
// before it writes: a text left incomplete by a failure is not stored over
// the one there, so every stored value stays the old or the new one.
class FailureWatch {
 public:
  FailureWatch();
  bool sawFailure() const;

 private:
  uint64_t start_;
};

}  // namespace qb
