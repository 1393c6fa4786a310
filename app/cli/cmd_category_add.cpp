// quillbox category add: a new document category, made as the document
// window's "Add Categories" makes it: through the category editor, under the
// category given (the client's main one by default).

#include "app/cli/category_editing.h"
#include "app/cli/component_host.h"
#include "app/cli/session.h"
#include "dialogs/frm_edit_doc_category.h"

namespace qb::cli {
namespace {

int runAdd(Context& context) {
  const Arguments& args = context.args;
  ClientIds client{args.id("company", -1), args.id("contact", -1)};
  if (client.company >= 0 && client.contact >= 0)
    throw UsageError("give --company or --contact, not both");
  if (!args.has("parent") && client.company < 0 && client.contact < 0)
    throw UsageError("give --parent, or the client with --company or --contact");
  Session session(context);
  if (args.has("parent")) {
    const ClientIds owner = categoryClient(args, "parent");
    if ((client.company >= 0 || client.contact >= 0) && !(owner == client))
      throw UsageError("--parent " + args.value("parent") + " is a category of another client");
    client = owner;
  }
  ComponentHost host(session, args.required("db"), client.company, client.contact);
  const int32_t parent = args.id("parent", host.mainCategory());
  if (!host.select(parent)) {
    context.err << "quillbox: the client has no category to add under\n";
    return 1;
  }
  host.inEditor([&args](frmEditDocCategory& editor) { fillEditor(editor, args); });
  host.component().addNewDocumentCategory();
  const int status = host.finish(context, session);
  const int32_t added = host.component().getCurrentlySelectedCategoryID();
  if (status == 0 && added != parent) {
    context.out << added << "\n";
    noteMissingFolder(context);
  }
  return status;
}

const CommandRegistration registration(Command{
    "category add",
    "add a document category to a client's tree",
    "Usage: quillbox category add --db FILE (--parent ID | --company ID | --contact ID)\n"
    "                             [--name TEXT] [--description TEXT] [--folder DIR]\n"
    "\n"
    "Adds a category as the document window's category editor does and prints its\n"
    "id. It goes under --parent, or under the client's main category (which a client\n"
    "that has none gets first). The name is \"New Category\" unless given; an empty\n"
    "name is refused. With --folder the category is tied to that folder: each time\n"
    "it shows, the files directly in the folder that it does not link yet get a\n"
    "link (sub-folders are not walked; nothing on disk is ever changed). A folder\n"
    "that is not there is kept as given, with a note.\n"
    "\n"
    "  --db FILE            the client database\n"
    "  --parent ID          the category to add under\n"
    "  --company ID         the client company, to add under its main category\n"
    "  --contact ID         the client contact, likewise\n"
    "  --name TEXT          the category's name\n"
    "  --description TEXT   its description (line breaks kept)\n"
    "  --folder DIR         the folder whose files it shows\n",
    {"db", "parent", "company", "contact", "name", "description", "folder"},
    {},
    runAdd,
    true,
    {{"parent", "DocCategories", "DocCategoryID", "document category"}},
});

}  // namespace
}  // namespace qb::cli
