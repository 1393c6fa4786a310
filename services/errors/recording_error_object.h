#pragma once
// The test host's error object: records every push, pop and failure, and
// answers errorResponse from a script (the next scripted answer, then the
// default once the script runs out).

#include <deque>
#include <string>
#include <vector>

#include "services/errors/error_object.h"

namespace qb {

class RecordingErrorObject : public ErrorObject {
 public:
  struct Failure {
    int32_t number;
    std::string description;
    std::string source;
    std::vector<std::string> stack;  // the trace at the moment of the failure
  };

  void pushProcedureName(const std::string& name) override {
    stack.push_back(name);
    pushed.push_back(name);
  }
  void popProcedureName() override {
    if (!stack.empty()) stack.pop_back();
    ++pops;
  }
  void recordError(const RuntimeError& error) override {
    failures.push_back({error.number(), error.description(), error.source(), stack});
  }
  void showError() override { ++shown; }
  int32_t errorResponse() override {
    if (script.empty()) return defaultResponse;
    int32_t answer = script.front();
    script.pop_front();
    return answer;
  }

  std::vector<std::string> stack;   // the live trace stack
  std::vector<std::string> pushed;  // every name ever pushed, in order
  int pops = 0;
  int shown = 0;
  std::vector<Failure> failures;
  std::deque<int32_t> script;
  int32_t defaultResponse = 2;
};

}  // namespace qb
