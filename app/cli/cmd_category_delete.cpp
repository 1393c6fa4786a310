// quillbox category delete: a category removed as the document window
// removes it, with its sub-categories and their links; no file is touched.

#include "app/cli/category_editing.h"
#include "app/cli/component_host.h"
#include "app/cli/session.h"

namespace qb::cli {
namespace {

int runDelete(Context& context) {
  const Arguments& args = context.args;
  Session session(context);
  const ClientIds client = categoryClient(args, "category");
  ComponentHost host(session, args.required("db"), client.company, client.contact);
  host.select(args.requiredId("category"));
  host.component().deleteSelectedDocCategory();
  return host.finish(context, session);
}

const CommandRegistration registration(Command{
    "category delete",
    "delete a document category with its sub-categories and their links",
    "Usage: quillbox category delete --db FILE --category ID\n"
    "\n"
    "Removes the category, every category under it and the document links in\n"
    "them, as the document window does once its question is answered yes. The\n"
    "files the links point at stay where they are. The client's main category\n"
    "and the categories of its merge documents can't be deleted: the command\n"
    "says why and exits with status 1.\n"
    "\n"
    "  --db FILE       the client database\n"
    "  --category ID   the category (see quillbox categories)\n",
    {"db", "category"},
    {},
    runDelete,
    true,
});

}  // namespace
}  // namespace qb::cli
