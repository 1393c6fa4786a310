#pragma once
// RecordingShell: a shell for tests. It launches nothing and records every
// call as a line of text: "open <file>", "properties <file>", "find <folder>".

#include <string>
#include <vector>

#include "services/shell/shell.h"

namespace qb {

class RecordingShell : public Shell {
 public:
  std::vector<std::string> calls;
  std::vector<SHELLEXECUTEINFO> requests;  // the ShellExecuteEx records
  int64_t openResult = 42;                 // what ShellExecuteA answers

  int64_t ShellExecuteA(int64_t, const std::string& operation, const std::string& file,
                        const std::string&, const std::string&, int32_t) override {
    calls.push_back(operation + " " + file);
    return openResult;
  }
  bool ShellExecuteEx(SHELLEXECUTEINFO& info) override {
    calls.push_back(info.lpVerb + " " + info.lpFile);
    requests.push_back(info);
    info.hInstApp = 42;
    return true;
  }
  void FindFiles(const std::string& folder) override { calls.push_back("find " + folder); }
};

}  // namespace qb
