#include "services/shell/shell.h"

namespace qb {

namespace {

// No desktop: nothing is launched, every call fails.
class NoShell : public Shell {
 public:
  int64_t ShellExecuteA(int64_t, const std::string&, const std::string&, const std::string&,
                        const std::string&, int32_t) override {
    return SE_ERR_NOASSOC;
  }
  bool ShellExecuteEx(SHELLEXECUTEINFO& info) override {
    info.hInstApp = SE_ERR_NOASSOC;
    return false;
  }
  void FindFiles(const std::string&) override {}
};

thread_local std::shared_ptr<Shell> installed;

}  // namespace

Shell& shell() {
  if (installed) return *installed;
  static thread_local NoShell none;
  return none;
}

void installShell(std::shared_ptr<Shell> shell) { installed = std::move(shell); }

}  // namespace qb
