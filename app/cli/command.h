#pragma once
// The quillbox tool's commands. Each command lives in a file of its own and
// registers itself with a static CommandRegistration; main.cpp parses the
// global flags, finds the command and runs it. A command of a group is named
// with both words ("lookup fill-all", "links check") and called the same way.

#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace qb::cli {

// Parsed command line: options with values, flags without, in any order.
class Arguments {
 public:
  bool has(const std::string& name) const { return values_.count(name) || flags_.count(name); }
  // The value of an option, or fallback when it was not given.
  std::string value(const std::string& name, const std::string& fallback = "") const;
  // The value as a 32-bit id; throws UsageError when it is not a whole number.
  int32_t id(const std::string& name, int32_t fallback) const;
  int32_t requiredId(const std::string& name) const;
  std::string required(const std::string& name) const;

  std::map<std::string, std::string> values_;
  std::set<std::string> flags_;
};

// A mistake on the command line: printed with the command's usage, exit 2.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// What a command's run gets: its arguments, the output stream, and the
// global locale and clock flags.
struct Context {
  Arguments args;
  std::ostream& out;
  std::ostream& err;
  int32_t country = 1;
  int32_t province = 3;
  int32_t user = 1;
  std::optional<double> today = std::nullopt;  // --today as a date serial; none: the machine's date
};

struct Command {
  std::string name;
  std::string summary;                    // one line for `quillbox --help`
  std::string help;                       // the whole text for `quillbox NAME --help`
  std::vector<std::string> valueOptions;  // options that take a value, without "--"
  std::vector<std::string> flagOptions;   // options without a value
  std::function<int(Context&)> run;       // returns the exit status
  // The command changes the database. A command that only reads leaves this
  // false: its session opens the database read-only.
  bool writes = false;
};

std::vector<Command>& commandRegistry();

struct CommandRegistration {
  explicit CommandRegistration(Command command) { commandRegistry().push_back(std::move(command)); }
};

}  // namespace qb::cli
