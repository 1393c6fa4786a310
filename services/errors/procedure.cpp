#include "services/errors/procedure.h"

#include <algorithm>
#include <exception>

#include "services/errors/error_object.h"
#include "services/host/module_state.h"

namespace qb {

void ExitProgram() {}

namespace {

// The failures reported on this thread, for FailureWatch.
thread_local uint64_t reportedFailures = 0;

}  // namespace

FailureWatch::FailureWatch() : start_(reportedFailures) {}

bool FailureWatch::sawFailure() const { return reportedFailures != start_; }

Procedure::Procedure(std::string traceName, Mode mode)
    : traceName_(std::move(traceName)), mode_(mode), errorObject_(moduleState().errorClass.get()) {
  if (errorObject_ == nullptr) return;
  try {
    errorObject_->pushProcedureName(traceName_);
  } catch (...) {
    // A trace that can't be pushed is no reason to stop the procedure.
  }
}

Procedure::~Procedure() {
  if (errorObject_ == nullptr) return;
  try {
    errorObject_->popProcedureName();
  } catch (...) {
  }
}

bool Procedure::step(const std::function<void()>& body) {
  if (leaving_) return false;
  try {
    body();
    return true;
  } catch (const RuntimeError& error) {
    handle(error);
  } catch (const std::bad_alloc&) {
    handle(RuntimeError(7, "Out of memory", traceName_));
  } catch (const std::exception& error) {
    handle(RuntimeError(err::kInvalidCall, error.what(), traceName_));
  } catch (...) {
    handle(RuntimeError(err::kInvalidCall, "Unknown failure", traceName_));
  }
  return false;
}

void Procedure::handle(const RuntimeError& error) {
  failed_ = true;
  if (mode_ == Mode::Resume) return;
  if (std::find(ignored_.begin(), ignored_.end(), error.number()) != ignored_.end()) return;
  if (errorObject_ == nullptr) {
    leaving_ = true;
    return;
  }
  ++reportedFailures;
  int32_t response = 0;
  try {
    RuntimeError sourced(error.number(), error.description(),
                         error.source().empty() ? traceName_ : error.source());
    errorObject_->recordError(sourced);
    errorObject_->showError();
    response = errorObject_->errorResponse();
  } catch (...) {
    response = 2;
  }
  switch (response) {
    case 1:
      break;
    case 3:
      ExitProgram();
      leaving_ = true;
      break;
    default:
      leaving_ = true;
      break;
  }
}

}  // namespace qb
