// quillbox document: one document link's facts as the properties dialog
// shows them.

#include "app/cli/command.h"
#include "app/cli/dialog_host.h"
#include "dialogs/frm_doc_properties.h"
#include "services/quillbox/doc_quillbox_document_class.h"

namespace qb::cli {
namespace {

int runDocument(Context& context) {
  const Arguments& args = context.args;
  const int32_t id = args.requiredId("id");
  Session session(context);
  hostDialogs(session, args.required("db"));

  auto document = std::make_shared<docQuillboxDocumentClass>();
  document->setDocumentID(id);
  bool loadAll = true;
  bool found = false;
  document->loadDocument(loadAll, found);
  if (!found) {
    context.err << "quillbox: there is no document " << id << "\n";
    return 1;
  }
  frmDocProperties form;
  form.Initialize(document);

  // "Label: value", the dialog's labels in its order.
  TextBox* fields[] = {&form.txtField(),        &form.txtDateAdded(), &form.txtUserAdded(),
                       &form.txtFileLocation(), &form.txtFileSize(),  &form.txtCreated(),
                       &form.txtModified(),     &form.txtAccessed()};
  for (int16_t i = 0; i < static_cast<int16_t>(std::size(fields)); ++i)
    context.out << form.lblFieldCaption(i).Caption() << " " << fields[i]->Text() << "\n";
  if (form.lblReadOnly().Visible())
    context.out << form.Label16().Caption() << " " << form.lblReadOnly().Caption() << "\n";
  if (form.PropertiesTab().TabVisible(1))
    context.out << form.Label9().Caption() << ": " << form.lblErrorDescription().Caption() << "\n";
  return session.exitStatus();
}

const CommandRegistration kRegistration(Command{
    "document",
    "print one document link's facts as its properties dialog shows them",
    "Usage: quillbox document --db FILE --id N\n"
    "\n"
    "Prints what the document properties dialog shows for the link, one\n"
    "\"Label: value\" line each: the display name, date added and user, then the\n"
    "file's location, size and dates (\"Unknown\" for a file that is not there).\n"
    "A read-only file adds the dialog's note. A missing file adds a line\n"
    "\"File Not Found: \" with the dialog's explanation: the folder is there but\n"
    "the file is not, the link was added on another computer that can't be\n"
    "reached, or the file is gone from this computer.\n"
    "\n"
    "  --db FILE   the client database\n"
    "  --id N      the document link (Documents.DocumentID)\n",
    {"db", "id"},
    {},
    runDocument,
});

}  // namespace
}  // namespace qb::cli
