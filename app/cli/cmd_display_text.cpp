// quillbox display-text: the calendar's text (or title) of an appointment,
// a time entry or a task for the signed-in user.

#include "app/cli/command.h"
#include "app/cli/merge_options.h"
#include "app/cli/session.h"

namespace qb::cli {
namespace {

int runDisplayText(Context& context) {
  const Arguments& args = context.args;
  const int32_t listType = args.id("list-type", -1);
  if (listType != listTypeAppointment && listType != listTypeTimeEntry &&
      listType != listTypeTask) {
    throw UsageError("--list-type is 5 (appointment), 6 (time entry) or 8 (task)");
  }
  int items = 0;
  for (const char* item : {"appointment", "docket", "task", "schedule"}) items += args.has(item);
  if (items > 1) throw UsageError("give one of --appointment, --docket, --task, --schedule");
  Session session(context, Session::Database::Optional);
  std::string text;
  {
    clsInsertFieldsInRTB fields;
    setMergeItems(fields, args);
    fields.setUserID(context.user);
    fields.setTestComment(args.has("test"));
    text = args.has("title") ? fields.createTitleBarTextByID() : fields.createDisplayTextByID();
  }
  context.out << text;
  return session.exitStatus();
}

const CommandRegistration registration(Command{
    "display-text",
    "the calendar's text or title of an appointment, time entry or task",
    "Usage: quillbox display-text --list-type 5|6|8 [--db FILE]\n"
    "         [--appointment ID | --docket ID | --task ID | --schedule ID]\n"
    "         [--company ID] [--contact ID] [--test] [--title]\n"
    "\n"
    "Prints the text the calendar shows for the item, exactly, with nothing added:\n"
    "the template of the user of --user for the item's kind (or the built-in one)\n"
    "merged for the item and framed by the item's own text before and after. With\n"
    "--title, the title bar text from the user's title template (nothing when the\n"
    "user has none).\n"
    "\n"
    "  --list-type N      5 appointment, 6 time entry, 8 task\n"
    "  --appointment ID, --docket ID, --task ID\n"
    "                     the item\n"
    "  --schedule ID      the task of this schedule row (an archived task by its\n"
    "                     old id)\n"
    "  --company ID       the item's company: for a company's item the company's\n"
    "                     default contact is taken as the contact\n"
    "  --contact ID       the item's contact\n"
    "  --test             a test: a bad template of the user's shows the built-in\n"
    "                     one, and fields give their samples\n"
    "  --title            the title bar text\n"
    "  --db FILE          the client database\n",
    {"list-type", "appointment", "docket", "task", "schedule", "company", "contact", "db"},
    {"test", "title"},
    runDisplayText,
    false,
    {kScheduleId},
});

}  // namespace
}  // namespace qb::cli
