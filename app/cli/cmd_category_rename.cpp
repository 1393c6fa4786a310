// quillbox category rename: a category's name, description or folder
// changed as the category editor changes them.

#include "app/cli/category_editing.h"
#include "app/cli/component_host.h"
#include "app/cli/session.h"
#include "dialogs/frm_edit_doc_category.h"

namespace qb::cli {
namespace {

int runRename(Context& context) {
  const Arguments& args = context.args;
  if (!args.has("name") && !args.has("description") && !args.has("folder"))
    throw UsageError("give --name, --description or --folder");
  Session session(context);
  const ClientIds client = categoryClient(args, "category");
  ComponentHost host(session, args.required("db"), client.company, client.contact);
  host.select(args.requiredId("category"));
  host.inEditor([&args](frmEditDocCategory& editor) { fillEditor(editor, args); });
  host.component().editSelectedDocCategoryNode();
  const int status = host.finish(context, session);
  if (status == 0) noteMissingFolder(context);
  return status;
}

const CommandRegistration registration(Command{
    "category rename",
    "rename a document category, or change its description or folder",
    "Usage: quillbox category rename --db FILE --category ID [--name TEXT]\n"
    "                                [--description TEXT] [--folder DIR]\n"
    "\n"
    "Changes what is given, as the document window's category editor does. The\n"
    "client's main category and the categories of its merge documents can't be\n"
    "changed: the command says why and exits with status 1. An empty name is\n"
    "refused.\n"
    "\n"
    "  --db FILE            the client database\n"
    "  --category ID        the category (see quillbox categories)\n"
    "  --name TEXT          its new name\n"
    "  --description TEXT   its new description (line breaks kept)\n"
    "  --folder DIR         the folder whose files it shows (\"\" for none)\n",
    {"db", "category", "name", "description", "folder"},
    {},
    runRename,
    true,
});

}  // namespace
}  // namespace qb::cli
