// quillbox: the command-line host. Creates client databases and runs the
// system's operations on a database file, printing results to standard output
// and failures to standard error.

#include <algorithm>
#include <iostream>
#include <sstream>

#include "app/cli/command.h"
#include "services/runtime/dates.h"

namespace {

using qb::cli::Command;
using qb::cli::commandRegistry;
using qb::cli::UsageError;

const char* kGlobalHelp =
    "Global options (before or after the command's name):\n"
    "  --country N    the firm's country: 1 Canada, 2 United States (default 1)\n"
    "  --province N   the firm's province code (default 3, Ontario)\n"
    "  --user N       the signed-in user's id (default 1)\n"
    "  --today DATE   today's date as YYYY-MM-DD for everything that reads it\n"
    "                 (default: the machine's date)\n"
    "  --help         describe the tool, or the command given\n"
    "  --version      print the tool's version\n";

void printToolHelp(std::ostream& out) {
  out << "quillbox - the document-link manager and merge engine's command-line tool\n\n"
         "Usage: quillbox [global options] COMMAND [options]\n\nCommands:\n";
  auto commands = commandRegistry();
  std::sort(commands.begin(), commands.end(),
            [](const Command& a, const Command& b) { return a.name < b.name; });
  for (const Command& command : commands) {
    out << "  " << command.name
        << std::string(command.name.size() < 18 ? 18 - command.name.size() : 1, ' ')
        << command.summary << "\n";
  }
  out << "\n" << kGlobalHelp << "\nRun 'quillbox COMMAND --help' for a command's options.\n";
}

const Command* findCommand(const std::string& name) {
  for (const Command& command : commandRegistry()) {
    if (command.name == name) return &command;
  }
  return nullptr;
}

// A group is the first word of commands named with two words.
bool isGroup(const std::string& word) {
  for (const Command& command : commandRegistry()) {
    if (command.name.rfind(word + " ", 0) == 0) return true;
  }
  return false;
}

std::string groupList(const std::string& word) {
  std::vector<std::string> names;
  for (const Command& command : commandRegistry()) {
    if (command.name.rfind(word + " ", 0) == 0) names.push_back(command.name);
  }
  std::sort(names.begin(), names.end());
  std::string text;
  for (const std::string& name : names) text += "\n  " + name;
  return text;
}

bool contains(const std::vector<std::string>& list, const std::string& name) {
  return std::find(list.begin(), list.end(), name) != list.end();
}

int32_t globalNumber(const qb::cli::Arguments& args, const std::string& name, int32_t fallback) {
  return args.id(name, fallback);
}

// --today YYYY-MM-DD as a date serial; none when the flag is not given.
std::optional<double> todayFlag(const qb::cli::Arguments& args) {
  if (!args.has("today")) return std::nullopt;
  const std::string text = args.value("today");
  const bool shaped = text.size() == 10 && text[4] == '-' && text[7] == '-' &&
                      std::all_of(text.begin(), text.end(),
                                  [](char c) { return c == '-' || (c >= '0' && c <= '9'); });
  double serial = 0;
  if (!shaped || !qb::parseDate(text, serial)) {
    throw UsageError("--today takes a date as YYYY-MM-DD, not '" + text + "'");
  }
  return serial;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> words(argv + 1, argv + argc);
  const Command* command = nullptr;
  bool help = false;
  qb::cli::Arguments args;
  const std::vector<std::string> globalValues = {"country", "province", "user", "today"};

  try {
    for (size_t i = 0; i < words.size(); ++i) {
      const std::string& word = words[i];
      if (word == "--help" || word == "-h") {
        help = true;
      } else if (word == "--version") {
        std::cout << "quillbox " << QB_VERSION << "\n";
        return 0;
      } else if (word.rfind("--", 0) == 0) {
        std::string name = word.substr(2);
        std::string inlineValue;
        bool hasInline = false;
        if (auto eq = name.find('='); eq != std::string::npos) {
          inlineValue = name.substr(eq + 1);
          name = name.substr(0, eq);
          hasInline = true;
        }
        bool takesValue = contains(globalValues, name) ||
                          (command != nullptr && contains(command->valueOptions, name));
        bool isFlag = command != nullptr && contains(command->flagOptions, name);
        if (takesValue) {
          if (hasInline) {
            args.values_[name] = inlineValue;
          } else {
            if (i + 1 >= words.size()) throw UsageError("--" + name + " needs a value");
            args.values_[name] = words[++i];
          }
        } else if (isFlag) {
          args.flags_.insert(name);
        } else if (command == nullptr) {
          throw UsageError("unknown option --" + name + " (give the command first)");
        } else {
          throw UsageError("unknown option --" + name + " for '" + command->name + "'");
        }
      } else if (command == nullptr) {
        command = findCommand(word);
        if (command == nullptr && i + 1 < words.size()) {
          command = findCommand(word + " " + words[i + 1]);
          if (command != nullptr) ++i;
        }
        if (command == nullptr && isGroup(word)) {
          throw UsageError("'" + word + "' needs one of its commands:" + groupList(word));
        }
        if (command == nullptr) throw UsageError("unknown command '" + word + "'");
      } else {
        throw UsageError("unexpected argument '" + word + "'");
      }
    }

    if (command == nullptr) {
      printToolHelp(help ? std::cout : std::cerr);
      return help ? 0 : 2;
    }
    if (help) {
      std::cout << command->help << "\n" << kGlobalHelp;
      return 0;
    }
    qb::cli::Context context{args, std::cout, std::cerr};
    context.country = globalNumber(args, "country", 1);
    context.province = globalNumber(args, "province", 3);
    context.user = globalNumber(args, "user", 1);
    context.today = todayFlag(args);
    return command->run(context);
  } catch (const UsageError& error) {
    std::cerr << "quillbox: " << error.what() << "\n";
    if (command != nullptr) {
      std::cerr << "\n" << command->help << "\n";
    } else {
      std::cerr << "Run 'quillbox --help' for the commands.\n";
    }
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "quillbox: " << error.what() << "\n";
    return 1;
  }
}
