#pragma once
// RichTextBoxWidget: a rich text box model's text in an editor. The user's
// typing becomes the model's Text and the caret its SelStart and SelLength;
// text the program puts in the model (a field inserted at the caret) shows
// at once with the caret after it. Positions count characters as the model
// does, not UTF-16 units.

#include <QPlainTextEdit>

#include "gui/bound_widget.h"
#include "services/controls/rich_text_box.h"

namespace qb::gui {

class RichTextBoxWidget : public BoundWidget<QPlainTextEdit, RichTextBox> {
 public:
  RichTextBoxWidget(RichTextBox& control, QWidget* parent);

 protected:
  void applyChange(ControlChange change) override;

 private:
  void applyText();
  void applyCaret();
  void userEdited();
  void userMovedCaret();

  bool syncing_ = false;
};

}  // namespace qb::gui
