#include "app/cli/category_editing.h"

#include "app/cli/component_host.h"
#include "dialogs/frm_edit_doc_category.h"
#include "services/util/file_utilities_class.h"

namespace qb::cli {

ClientIds categoryClient(const Arguments& args, const std::string& option) {
  const int32_t id = args.requiredId(option);
  ClientIds client;
  if (!ComponentHost::ownerOfCategory(id, client.company, client.contact))
    throw UsageError("--" + option + " " + std::to_string(id) + " names no document category");
  return client;
}

ClientIds documentClient(const Arguments& args, int32_t& categoryID) {
  const int32_t id = args.requiredId("document");
  ClientIds client;
  if (!ComponentHost::ownerOfDocument(id, client.company, client.contact, categoryID))
    throw UsageError("--document " + std::to_string(id) + " names no document link");
  return client;
}

void requireSameClient(const Arguments& args, const std::string& option, const ClientIds& client) {
  if (categoryClient(args, option) == client) return;
  throw UsageError("--" + option + " " + args.value(option) +
                   " is a category of another client: links and categories move within one "
                   "client's tree");
}

void fillEditor(frmEditDocCategory& editor, const Arguments& args) {
  if (args.has("name")) editor.txtField(0).setText(args.value("name"));
  if (args.has("description")) {
    std::string text;
    for (char c : args.value("description")) {
      if (c == '\n' && (text.empty() || text.back() != '\r')) text += '\r';
      text += c;
    }
    editor.txtField2().setText(text);
  }
  if (args.has("folder")) editor.txtField(1).setText(args.value("folder"));
  editor.cmdOK().click();
  if (editor.Visible()) editor.cmdCancel().click();
}

void noteMissingFolder(Context& context) {
  const std::string folder = context.args.value("folder");
  if (folder.empty() || fileUtilitiesClass().folderExists(folder)) return;
  context.err << "quillbox: note: there is no folder '" << folder
              << "' (yet); the category keeps it and shows its files once it is there\n";
}

}  // namespace qb::cli
