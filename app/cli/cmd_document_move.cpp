// quillbox document move: a document link dragged from its category's list
// onto another category of the client.

#include "app/cli/category_editing.h"
#include "app/cli/component_host.h"
#include "app/cli/session.h"

namespace qb::cli {
namespace {

int runMove(Context& context) {
  const Arguments& args = context.args;
  Session session(context);
  int32_t category = -1;
  const ClientIds client = documentClient(args, category);
  requireSameClient(args, "to", client);
  ComponentHost host(session, args.required("db"), client.company, client.contact);
  if (!host.dragDocument(args.requiredId("document"), args.requiredId("to"))) {
    context.err << "quillbox: the document link " << args.value("document")
                << " is in no category of its client's tree\n";
    return 1;
  }
  return host.finish(context, session);
}

const CommandRegistration registration(Command{
    "document move",
    "move a document link to another category of its client",
    "Usage: quillbox document move --db FILE --document ID --to ID\n"
    "\n"
    "Moves the link into the category --to names, as dragging its row onto that\n"
    "category's node in the document window does. The file stays where it is.\n"
    "\n"
    "  --db FILE       the client database\n"
    "  --document ID   the document link (Documents.DocumentID)\n"
    "  --to ID         the category it goes into (see quillbox categories)\n",
    {"db", "document", "to"},
    {},
    runMove,
    true,
    {{"to", "DocCategories", "DocCategoryID", "document category"}},
});

}  // namespace
}  // namespace qb::cli
