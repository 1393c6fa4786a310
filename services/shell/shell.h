#pragma once
// Shell: what the desktop does with a file for the system — open it in the
// default application for its type, show the file manager's properties
// window for it, open the file manager on a folder to search. The GUI
// installs the desktop's (gui/desktop_shell.h); without one nothing is
// launched and every call reports failure.

#include <cstdint>
#include <memory>
#include <string>

namespace qb {

// The request record of ShellExecuteEx, with the fields the system fills.
struct SHELLEXECUTEINFO {
  uint32_t cbSize = 0;
  uint32_t fMask = 0;
  int64_t hwnd = 0;
  std::string lpVerb;
  std::string lpFile;
  std::string lpParameters;
  std::string lpDirectory;
  int32_t nShow = 0;
  int64_t hInstApp = 0;  // set by the call: above 32 when it went out
};

// Results of ShellExecuteA: above 32 success; SE_ERR_NOASSOC when nothing
// can open the file.
constexpr int64_t SE_ERR_NOASSOC = 31;

class Shell {
 public:
  virtual ~Shell() = default;
  // Runs the verb on the file: "open" starts the desktop's default
  // application for its type and returns without waiting for it. Returns a
  // value above 32 when the request went out.
  virtual int64_t ShellExecuteA(int64_t hwnd, const std::string& operation, const std::string& file,
                                const std::string& parameters, const std::string& directory,
                                int32_t showCommand) = 0;
  // Verb "properties": the file manager's properties window for lpFile. True
  // when the request went out; the answer is not waited for.
  virtual bool ShellExecuteEx(SHELLEXECUTEINFO& info) = 0;
  // The desktop's own file search: the file manager opened on the folder.
  virtual void FindFiles(const std::string& folder) = 0;
};

// This thread's shell: the one installed, else one that launches nothing.
Shell& shell();
// Installs a shell for this thread; null goes back to the one that launches
// nothing.
void installShell(std::shared_ptr<Shell> shell);

}  // namespace qb
