// quillbox lookup is-lookup, is-client-repeater, is-type-repeater: what a
// custom column of a record family is, as True or False.

#include "app/cli/lookup_options.h"
#include "app/cli/session.h"

namespace qb::cli {
namespace {

using TypeTest = bool (clsLookupFields::*)();

int runTypeTest(Context& context, TypeTest test) {
  Session session(context);
  std::unique_ptr<clsLookupFields> fields = lookupFromOptions(context.args);
  const bool answer = (fields.get()->*test)();
  context.out << (answer ? "True" : "False") << "\n";
  return session.exitStatus();
}

Command typeCommand(const char* name, const char* summary, const char* what, TypeTest test) {
  return Command{
      std::string("lookup ") + name,
      summary,
      lookupHelp(std::string("lookup ") + name + " --db FILE --family N --custom N", what, ""),
      {"db", "family", "custom"},
      {},
      [test](Context& context) { return runTypeTest(context, test); }};
}

const CommandRegistration kIsLookup(typeCommand(
    "is-lookup", "whether a custom column mirrors a merge field for every client (True/False)",
    "Prints True when the firm's settings make the custom column a lookup field:\n"
    "a column that holds a merge field's value for every client, filled by\n"
    "quillbox lookup fill-all. Otherwise, and when the settings can't be read,\n"
    "False.",
    &clsLookupFields::isLookupField));

const CommandRegistration kIsClientRepeater(typeCommand(
    "is-client-repeater", "whether a custom column repeats one value over a client's rows",
    "Prints True when the firm's settings make the custom column a client\n"
    "repeater: one value over all rows of a client, written by quillbox lookup\n"
    "fill-client-repeater. Only task schedule rows and projects have them: for\n"
    "personal tax rows the answer is False.",
    &clsLookupFields::isClientRepeaterField));

const CommandRegistration kIsTypeRepeater(typeCommand(
    "is-type-repeater", "whether a custom column repeats one value over a task or project type",
    "Prints True when the firm's settings make the custom column a type repeater:\n"
    "one value over all task schedule rows of a task type (family 1) or all\n"
    "projects of a project type (family 3). For personal tax rows the answer is\n"
    "False.",
    &clsLookupFields::isTaskTypeRepeaterField));

}  // namespace
}  // namespace qb::cli
