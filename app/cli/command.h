#pragma once
// The quillbox tool's commands. Each command lives in a file of its own and
// registers itself with a static CommandRegistration; command_line.cpp parses
// the global flags, finds the command and runs it. A command of a group is
// named with both words ("lookup fill-all", "links check") and called the
// same way.
//
// Writing. A command that changes the database sets `writes`. Its Session
// opens the database for writing; every other command's Session opens it
// read-only, so that a read never changes the file (also a read-only file or
// a file in a read-only folder can be read).
//
// Ids. A value option that names a row of the database is an id option. The
// options named in the table of id options (id_options.cpp: --company,
// --contact, --employee, --related, --user, --firm, --client-data,
// --category, --document, --appointment, --task, --docket) are ids in every
// command that takes them; a command declares more, or says that one of
// those names is no id for it, in its `ids` list:
//
//   {..., runMove, true, {{"to", "DocCategories", "DocCategoryID", "document category"},
//                         {"schedule", "", "", ""}}}   // here a number, no id
//
// The host then refuses, with exit status 2 and a message that names the
// flag and the value, before the command runs:
//   - for every command, an id that is not a whole number of 32 bits
//     ("--contact 2147483648 is too big for an id");
//   - for a command that writes, once its Session has opened the database, an
//     id of 0 or more that names no row ("--contact 9999 names no contact in
//     the database"). A negative id keeps its meaning of "none".
// A command reads its ids with Arguments::id or requiredId.
//
// Output. What a command writes to Context::out reaches standard output when
// the command ends, and only when its error object recorded no failure: a
// failed command prints its failure on standard error and no result. A write
// error on standard output is itself a failure (exit status 1).

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace qb::cli {

// Parsed command line: options with values, flags without, in any order.
class Arguments {
 public:
  bool has(const std::string& name) const { return values_.count(name) || flags_.count(name); }
  // The value of an option, or fallback when it was not given.
  std::string value(const std::string& name, const std::string& fallback = "") const;
  // The value as a 32-bit id, or fallback when it was not given; throws
  // UsageError naming the flag and the value when it is not a whole number or
  // does not fit an id.
  int32_t id(const std::string& name, int32_t fallback) const;
  int32_t requiredId(const std::string& name) const;
  // The value as a 32-bit whole number (a code, a count), or fallback; throws
  // UsageError as id() does.
  int32_t number(const std::string& name, int32_t fallback) const;
  std::string required(const std::string& name) const;

  std::map<std::string, std::string> values_;
  std::set<std::string> flags_;
};

// A mistake on the command line: printed with the command's usage, exit 2.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct Command;

// What a command's run gets: its arguments, the output streams, the global
// locale and clock flags and the command itself.
struct Context {
  Arguments args;
  std::ostream& out;
  std::ostream& err;
  int32_t country = 1;
  int32_t province = 3;
  int32_t user = 1;
  std::optional<double> today = std::nullopt;  // --today as a date serial; none: the machine's date
  const Command* command = nullptr;
  // Set by the Session when its error object recorded a failure: the
  // command's output is then withheld.
  bool failureRecorded = false;
};

// An option that holds an id: the table and key column its value names, and
// what a row of that table is called in messages. An empty table declares
// that the option is no id.
struct IdOption {
  std::string option;  // without "--"
  std::string table;
  std::string keyColumn;
  std::string noun;
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
  // Id options beyond (or instead of) the table of id options; see above.
  std::vector<IdOption> ids = {};
};

std::vector<Command>& commandRegistry();

struct CommandRegistration {
  explicit CommandRegistration(Command command) { commandRegistry().push_back(std::move(command)); }
};

}  // namespace qb::cli
