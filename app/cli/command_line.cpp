#include "app/cli/command_line.h"

#include <algorithm>
#include <optional>
#include <sstream>

#include "app/cli/id_options.h"
#include "services/runtime/dates.h"

namespace qb::cli {

namespace {

const char* kGlobalHelp =
    "Global options (before or after the command's name):\n"
    "  --country N    the firm's country: 1 Canada, 2 United States (default 1)\n"
    "  --province N   the firm's province code (default 3, Ontario)\n"
    "  --user N       the signed-in user's id (default 1)\n"
    "  --today DATE   today's date as YYYY-MM-DD for everything that reads it\n"
    "                 (default: the machine's date)\n"
    "  --help         describe the tool, or the command given\n"
    "  --version      print the tool's version\n";

const std::vector<std::string> kGlobalValues = {"country", "province", "user", "today"};

void printToolHelp(std::ostream& out) {
  out << "quillbox - the document-link manager and merge engine's command-line tool\n\n"
         "Usage: quillbox [global options] COMMAND [options]\n\nCommands:\n";
  auto commands = commandRegistry();
  std::sort(commands.begin(), commands.end(),
            [](const Command& a, const Command& b) { return a.name < b.name; });
  // A name too long for the column has its summary on the next line, under
  // the others.
  constexpr size_t kColumn = 18;
  for (const Command& command : commands) {
    out << "  " << command.name;
    if (command.name.size() < kColumn) {
      out << std::string(kColumn - command.name.size(), ' ');
    } else {
      out << "\n" << std::string(kColumn + 2, ' ');
    }
    out << command.summary << "\n";
  }
  out << "\n" << kGlobalHelp << "\nRun 'quillbox COMMAND --help' for a command's options.\n";
}

const Command* findCommand(const std::string& name) {
  for (const Command& command : commandRegistry()) {
    if (command.name == name) return &command;
  }
  return nullptr;
}

// The commands of a group: those named with the word and a second one.
std::vector<std::string> groupCommands(const std::string& word) {
  std::vector<std::string> names;
  for (const Command& command : commandRegistry()) {
    if (command.name.rfind(word + " ", 0) == 0) names.push_back(command.name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

bool contains(const std::vector<std::string>& list, const std::string& name) {
  return std::find(list.begin(), list.end(), name) != list.end();
}

// --today YYYY-MM-DD as a date serial; none when the flag is not given.
std::optional<double> todayFlag(const Arguments& args) {
  if (!args.has("today")) return std::nullopt;
  const std::string text = args.value("today");
  const bool shaped = text.size() == 10 && text[4] == '-' && text[7] == '-' &&
                      std::all_of(text.begin(), text.end(),
                                  [](char c) { return c == '-' || (c >= '0' && c <= '9'); });
  double serial = 0;
  if (!shaped || !parseDate(text, serial)) {
    throw UsageError("--today takes a date as YYYY-MM-DD, not '" + text + "'");
  }
  return serial;
}

void parseOption(const std::vector<std::string>& words, size_t& i, CommandLine& line) {
  std::string name = words[i].substr(2);
  std::string inlineValue;
  bool hasInline = false;
  if (auto eq = name.find('='); eq != std::string::npos) {
    inlineValue = name.substr(eq + 1);
    name = name.substr(0, eq);
    hasInline = true;
  }
  const Command* command = line.command;
  bool takesValue = contains(kGlobalValues, name) ||
                    (command != nullptr && contains(command->valueOptions, name));
  if (takesValue) {
    if (hasInline) {
      line.args.values_[name] = inlineValue;
    } else {
      if (i + 1 >= words.size()) throw UsageError("--" + name + " needs a value");
      line.args.values_[name] = words[++i];
    }
  } else if (command != nullptr && contains(command->flagOptions, name)) {
    if (hasInline) throw UsageError("--" + name + " takes no value");
    line.args.flags_.insert(name);
  } else if (command == nullptr) {
    throw UsageError("unknown option --" + name + " (give the command first)");
  } else {
    throw UsageError("unknown option --" + name + " for '" + command->name + "'");
  }
}

void parseCommandName(const std::vector<std::string>& words, size_t& i, CommandLine& line) {
  const std::string& word = words[i];
  // A command of a group ("document move") before the command that has the
  // group's name alone ("document").
  if (i + 1 < words.size()) {
    line.command = findCommand(word + " " + words[i + 1]);
    if (line.command != nullptr) {
      ++i;
      return;
    }
  }
  line.command = findCommand(word);
  if (line.command != nullptr) return;
  std::vector<std::string> group = groupCommands(word);
  if (group.empty()) throw UsageError("unknown command '" + word + "'");
  // "quillbox links --help" asks for the group's commands.
  if (std::any_of(words.begin() + static_cast<std::ptrdiff_t>(i), words.end(),
                  [](const std::string& w) { return w == "--help" || w == "-h"; })) {
    line.group = word;
    return;
  }
  std::string list;
  for (const std::string& name : group) list += "\n  " + name;
  throw UsageError("'" + word + "' needs one of its commands:" + list);
}

}  // namespace

void parseCommandLine(const std::vector<std::string>& words, CommandLine& line) {
  for (size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (word == "--help" || word == "-h") {
      line.help = true;
    } else if (word == "--version") {
      line.version = true;
      return;
    } else if (word.rfind("--", 0) == 0) {
      parseOption(words, i, line);
    } else if (line.command == nullptr && line.group.empty()) {
      parseCommandName(words, i, line);
    } else {
      throw UsageError("unexpected argument '" + word + "'");
    }
  }
}

int runTool(const std::vector<std::string>& words, std::ostream& out, std::ostream& err) {
  CommandLine line;
  std::ostringstream results;
  int status = 0;
  try {
    parseCommandLine(words, line);
    if (line.version) {
      out << "quillbox " << QB_VERSION << "\n";
      return 0;
    }
    if (line.command == nullptr && !line.group.empty()) {
      out << "The commands of '" << line.group << "':\n";
      const std::vector<std::string> names = groupCommands(line.group);
      size_t width = 0;
      for (const std::string& name : names) width = std::max(width, name.size());
      for (const std::string& name : names) {
        out << "  " << name << std::string(width + 2 - name.size(), ' ')
            << findCommand(name)->summary << "\n";
      }
      out << "\nRun 'quillbox " << line.group << " COMMAND --help' for a command's options.\n";
      return 0;
    }
    if (line.command == nullptr) {
      printToolHelp(line.help ? out : err);
      return line.help ? 0 : 2;
    }
    if (line.help) {
      out << line.command->help << "\n" << kGlobalHelp;
      return 0;
    }
    checkIdFormats(*line.command, line.args);
    Context context{line.args, results, err};
    context.country = line.args.number("country", 1);
    context.province = line.args.number("province", 3);
    context.user = line.args.id("user", 1);
    context.today = todayFlag(line.args);
    context.command = line.command;
    status = line.command->run(context);
    if (context.failureRecorded) return status != 0 ? status : 1;
  } catch (const UsageError& error) {
    err << "quillbox: " << error.what() << "\n";
    if (line.command != nullptr) {
      err << "\n" << line.command->help << "\n";
    } else {
      err << "Run 'quillbox --help' for the commands.\n";
    }
    return 2;
  } catch (const std::exception& error) {
    err << "quillbox: " << error.what() << "\n";
    return 1;
  }
  out << results.str();
  return status;
}

}  // namespace qb::cli
