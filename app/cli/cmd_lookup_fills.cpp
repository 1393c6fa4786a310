// quillbox lookup fill-client-repeater, fill-task-type-repeater,
// fill-project-type-repeater, clear and fill-all: the bulk writes of custom
// columns, each value committed as it is written, with a progress bar on a
// terminal.

#include "app/cli/lookup_options.h"
#include "app/cli/session.h"

namespace qb::cli {
namespace {

using Run = LookupProgress::Run;

// Runs the operation on an object set up from the options and set, with
// the progress of its events; says so on standard error when nothing was
// there to write.
int runFill(Context& context, Run run,
            const std::function<void(clsLookupFields&, const Arguments&)>& set,
            const std::function<void(clsLookupFields&)>& operation, const std::string& nothing) {
  const Arguments& args = context.args;
  Session session(context);
  // Made once the session has set the locale and the clock (--today).
  std::unique_ptr<clsLookupFields> fields = lookupFromOptions(args);
  set(*fields, args);
  {
    LookupProgress progress(context, *fields, run);
    operation(*fields);
    if (!progress.started() && session.exitStatus() == 0) {
      context.err << "quillbox: nothing written: " << nothing << "\n";
    }
  }
  return session.exitStatus();
}

void setClient(clsLookupFields& fields, const Arguments& args) {
  const int given = args.has("company") + args.has("contact") + args.has("client-data");
  if (given != 1) throw UsageError("give one of --company ID, --contact ID or --client-data ID");
  fields.setRepeatValue(args.required("value"));
  if (args.has("company")) fields.setCompanyIDNum(args.requiredId("company"));
  if (args.has("client-data")) fields.setClientIDNum(args.requiredId("client-data"));
  if (args.has("contact")) fields.setContactIDNum(args.requiredId("contact"));
}

int runClientRepeater(Context& context) {
  if (context.args.value("family") == "2") {
    throw UsageError("personal tax rows (--family 2) have no client repeaters");
  }
  return runFill(
      context, Run::ClientRepeater, setClient,
      [](clsLookupFields& f) { f.populateClientRepeaterFieldValues(); },
      "the column is no client repeater of this family, or the client has no rows");
}

int runTaskTypeRepeater(Context& context) {
  const Arguments& args = context.args;
  if (args.value("family") != "1") {
    throw UsageError("task types are those of task schedule rows: give --family 1");
  }
  const int32_t total = args.number("total", 0);
  const int32_t schedule = args.number("schedule", 0);
  if (!args.has("total") || !args.has("schedule")) {
    throw UsageError("give --total N and --schedule N, the task type");
  }
  return runFill(
      context, Run::TypeRepeater,
      [](clsLookupFields& f, const Arguments& a) { f.setRepeatValue(a.required("value")); },
      [&](clsLookupFields& f) { f.populateTaskTypeRepeaterFieldValues(total, schedule); },
      "the column is no type repeater, or no schedule row has this task type");
}

int runProjectTypeRepeater(Context& context) {
  const Arguments& args = context.args;
  if (args.value("family") != "3") {
    throw UsageError("project types are those of company projects: give --family 3");
  }
  if (!args.has("project")) throw UsageError("give --project N, the project type");
  const int32_t project = args.number("project", 0);
  return runFill(
      context, Run::TypeRepeater,
      [](clsLookupFields& f, const Arguments& a) { f.setRepeatValue(a.required("value")); },
      [&](clsLookupFields& f) { f.populateProjectTypeRepeaterFieldValues(project); },
      "the column is no type repeater, or no project has this project type");
}

int runClear(Context& context) {
  return runFill(
      context, Run::Remove, [](clsLookupFields&, const Arguments&) {},
      [](clsLookupFields& f) { f.removeLookupFieldVales(); }, "the family has no rows");
}

int runFillAll(Context& context) {
  return runFill(
      context, Run::Lookup,
      [](clsLookupFields& f, const Arguments& a) { f.setFieldName(a.required("field")); },
      [](clsLookupFields& f) { f.populateLookupFieldValuesForAllClients(); },
      "the family has no rows, or the merge fields have no field of that name (quillbox "
      "fields --list-type 2 lists them)");
}

const CommandRegistration kClientRepeater(Command{
    "lookup fill-client-repeater",
    "write one value to a custom column of all rows of a client",
    lookupHelp("lookup fill-client-repeater --db FILE --family 1|3 --custom N --value TEXT\n"
               "         (--company ID | --contact ID | --client-data ID)",
               "When the custom column is a client repeater, writes the value (its first 255\n"
               "characters) to the column of every row of the client: the task schedule\n"
               "rows (family 1) or projects (family 3) of a company, or of a contact.\n"
               "Each row is committed as it is written. Prints nothing; a progress bar\n"
               "shows on standard error when it is a terminal.",
               "  --value TEXT       the value\n"
               "  --company ID       a company client\n"
               "  --client-data ID   a company client by its client data row\n"
               "  --contact ID       a contact client\n"),
    {"db", "family", "custom", "value", "company", "contact", "client-data"},
    {},
    runClientRepeater,
    true,
});

const CommandRegistration kTaskTypeRepeater(Command{
    "lookup fill-task-type-repeater",
    "write one value to a custom column of all schedule rows of a task type",
    lookupHelp("lookup fill-task-type-repeater --db FILE --family 1 --custom N --value TEXT\n"
               "         --total N --schedule N",
               "When the custom column is a type repeater, writes the value (its first 255\n"
               "characters) to the column of every task schedule row of the task type.\n"
               "The total number names the type; total number 111 stands for several\n"
               "types, and with a schedule number of 6 or more both name it. Prints\n"
               "nothing; a progress bar shows on standard error when it is a terminal.",
               "  --value TEXT       the value\n"
               "  --total N          the task type's total number\n"
               "  --schedule N       its schedule number\n"),
    {"db", "family", "custom", "value", "total", "schedule"},
    {},
    runTaskTypeRepeater,
    true,
    {{"schedule", "", "", ""}},
});

const CommandRegistration kProjectTypeRepeater(Command{
    "lookup fill-project-type-repeater",
    "write one value to a custom column of all projects of a project type",
    lookupHelp("lookup fill-project-type-repeater --db FILE --family 3 --custom N --value TEXT\n"
               "         --project N",
               "When the custom column is a type repeater, writes the value (its first 255\n"
               "characters) to the column of every project of the project type. Prints\n"
               "nothing; a progress bar shows on standard error when it is a terminal.",
               "  --value TEXT       the value\n"
               "  --project N        the project type (SavedProjectIDNum)\n"),
    {"db", "family", "custom", "value", "project"},
    {},
    runProjectTypeRepeater,
    true,
});

const CommandRegistration kClear(Command{
    "lookup clear",
    "empty a custom column in every row of a record family",
    lookupHelp("lookup clear --db FILE --family N --custom N [--tax-year Y]",
               "Empties the custom column in every row of the family; of personal tax\n"
               "rows, those of the tax year only. Each row is committed as it is written.\n"
               "Prints nothing; a progress bar shows on standard error when it is a\n"
               "terminal.",
               kTaxYearHelp),
    {"db", "family", "custom", "tax-year"},
    {},
    runClear,
    true,
});

const CommandRegistration kFillAll(Command{
    "lookup fill-all",
    "fill a lookup column with a merge field's value for every client",
    lookupHelp("lookup fill-all --db FILE --family N --custom N --field NAME [--tax-year Y]",
               "Fills the custom column of every row with the merge field's value for the\n"
               "row's client: client after client, each merged as a letter to that client\n"
               "would be (a company with its default contact), each value committed as it\n"
               "is written. A run that is stopped leaves every row with its old or its new\n"
               "value; running it again completes the fill. Personal tax rows are those of\n"
               "the tax year. Prints nothing; a progress bar shows on standard error when\n"
               "it is a terminal.",
               std::string("  --field NAME       the merge field's name (quillbox fields, second "
                           "column)\n") +
                   kTaxYearHelp),
    {"db", "family", "custom", "field", "tax-year"},
    {},
    runFillAll,
    true,
});

}  // namespace
}  // namespace qb::cli
