// The quillbox tool's command line under libFuzzer: any words (separated by
// NUL bytes in the input) are parsed as the tool parses them, the id options
// checked and every option read as the commands read them. A mistake must
// come as a UsageError; what is parsed must be what the command declared.
// No command runs: a command would touch files.

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "app/cli/command_line.h"
#include "app/cli/id_options.h"

namespace {

bool declared(const std::vector<std::string>& list, const std::string& name) {
  return std::find(list.begin(), list.end(), name) != list.end();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::vector<std::string> words(1);
  for (size_t i = 0; i < size && words.size() < 64; ++i) {
    if (data[i] == 0) {
      words.emplace_back();
    } else {
      words.back() += static_cast<char>(data[i]);
    }
  }
  qb::cli::CommandLine line;
  try {
    qb::cli::parseCommandLine(words, line);
  } catch (const qb::cli::UsageError&) {
    return 0;
  }
  if (line.command == nullptr) {
    if (!line.args.flags_.empty()) __builtin_trap();
    return 0;
  }
  const qb::cli::Command& command = *line.command;
  for (const auto& [name, value] : line.args.values_) {
    bool global = name == "country" || name == "province" || name == "user" || name == "today";
    if (!global && !declared(command.valueOptions, name)) __builtin_trap();
  }
  for (const std::string& flag : line.args.flags_) {
    if (!declared(command.flagOptions, flag)) __builtin_trap();
  }
  try {
    qb::cli::checkIdFormats(command, line.args);
    for (const auto& [name, value] : line.args.values_) {
      int32_t id = line.args.id(name, -1);
      // A value that reads as an id reads as the same number.
      if (line.args.number(name, 0) != id) __builtin_trap();
    }
  } catch (const qb::cli::UsageError&) {
  }
  return 0;
}
