#pragma once
// FindDocumentDialog: the find dialog on screen — a heading over two tabs:
// the criteria (field, text, the two options, the scope, Find, and the
// desktop's own file search) and the results (the views choice, the list
// with its columns, Go To Record), with Cancel below. Enter in the search
// text finds.

#include "gui/form_dialog.h"

namespace qb {
class frmFindDocument;
}

namespace qb::gui {

class FindDocumentDialog : public FormDialog {
 public:
  FindDocumentDialog(frmFindDocument& form, QWidget* parent);
};

}  // namespace qb::gui
