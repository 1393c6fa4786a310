// quillbox category move: a category dragged onto another in the client's
// tree, with everything under it.

#include "app/cli/category_editing.h"
#include "app/cli/component_host.h"
#include "app/cli/session.h"

namespace qb::cli {
namespace {

int runMove(Context& context) {
  const Arguments& args = context.args;
  Session session(context);
  const ClientIds client = categoryClient(args, "category");
  requireSameClient(args, "to", client);
  ComponentHost host(session, args.required("db"), client.company, client.contact);
  if (!host.dragCategory(args.requiredId("category"), args.requiredId("to"))) {
    context.err << "quillbox: the category " << args.value("category")
                << " stands at the top of its client's tree and can't be moved\n";
    return 1;
  }
  return host.finish(context, session);
}

const CommandRegistration registration(Command{
    "category move",
    "move a document category (with its sub-categories) under another",
    "Usage: quillbox category move --db FILE --category ID --to ID\n"
    "\n"
    "Moves the category, with the categories and links under it, under the\n"
    "category --to names, as dragging its node onto that node in the document\n"
    "window does. Both belong to one client. A category can't go under itself or\n"
    "under one of its own sub-categories (the command fails, status 1, and nothing\n"
    "changes), and the category at the top of the tree can't be moved.\n"
    "\n"
    "  --db FILE       the client database\n"
    "  --category ID   the category to move (see quillbox categories)\n"
    "  --to ID         the category it goes under\n",
    {"db", "category", "to"},
    {},
    runMove,
    true,
    {{"to", "DocCategories", "DocCategoryID", "document category"}},
});

}  // namespace
}  // namespace qb::cli
