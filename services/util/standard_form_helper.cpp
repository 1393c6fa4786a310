#include "services/util/standard_form_helper.h"

#include "services/controls/combo_box.h"
#include "services/controls/form.h"
#include "services/controls/text_box.h"
#include "services/runtime/strings.h"

namespace qb {

void StandardFormHelper::prepareForm(Form& form) { prepared_.push_back(form.Name()); }

namespace {

// Selects the whole text of a text or combo box, or puts the caret at its end.
template <class Box>
void selectAll(Box& box, bool whole) {
  box.setSelStart(whole ? 0 : Len(box.Text()));
  if (whole) box.setSelLength(Len(box.Text()));
}

}  // namespace

void StandardFormHelper::controlGotFocus(Control& control) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) selectAll(*box, true);
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) selectAll(*combo, true);
}

void StandardFormHelper::controlLostFocus(Control& control) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) selectAll(*box, false);
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) selectAll(*combo, false);
}

void StandardFormHelper::controlKeyUp(Control&, int16_t, int16_t) {}

}  // namespace qb
