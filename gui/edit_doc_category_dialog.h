#pragma once
// EditDocCategoryDialog: the category editor on screen — the heading, the
// category's name, the parent it stands under (shown only) and its
// description, then the synchronised folder with its note and Browse, and
// OK (the default button) and Cancel.

#include "gui/form_dialog.h"

namespace qb {
class frmEditDocCategory;
}

namespace qb::gui {

class EditDocCategoryDialog : public FormDialog {
 public:
  EditDocCategoryDialog(frmEditDocCategory& form, QWidget* parent);
};

}  // namespace qb::gui
