#pragma once
// The quillbox tool as a function: parses the words of a command line, finds
// the command, checks its ids and runs it. main() hands it the program's
// arguments; tests and the fuzzer call it directly.

#include <ostream>
#include <string>
#include <vector>

#include "app/cli/command.h"

namespace qb::cli {

// A command line taken apart. On a usage error the parts read so far stay.
struct CommandLine {
  const Command* command = nullptr;
  bool help = false;
  std::string group;     // a group's word alone with --help: list its commands
  bool version = false;  // --version: the rest is not read
  Arguments args;
};

// Parses the words after the program's name into line: global options and the
// command's options, before or after its name, "--name value" or
// "--name=value"; --version ends it. Throws UsageError for an unknown command or option, a
// missing value or a stray word.
void parseCommandLine(const std::vector<std::string>& words, CommandLine& line);

// Runs the tool on the words after the program's name. The command's results
// go to out, only when it succeeded; usage errors and failures go to err.
// Returns the exit status: 0 success, 1 a failure, 2 a usage error.
int runTool(const std::vector<std::string>& words, std::ostream& out, std::ostream& err);

}  // namespace qb::cli
