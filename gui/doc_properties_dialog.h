#pragma once
// DocPropertiesDialog: the document properties dialog on screen — the
// document's icon and name over two tabs: the link and the file's facts in
// two groups with read-only fields, and the missing-file page with its
// explanation, Browse and the help on shared files. Close is the default
// button.

#include "gui/form_dialog.h"

namespace qb {
class frmDocProperties;
}

namespace qb::gui {

class DocPropertiesDialog : public FormDialog {
 public:
  DocPropertiesDialog(frmDocProperties& form, QWidget* parent);
};

}  // namespace qb::gui
