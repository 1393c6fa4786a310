#include "services/util/standard_form_helper.h"

#include "services/controls/combo_box.h"
#include "services/controls/form.h"
#include "services/controls/text_box.h"
#include "services/runtime/strings.h"

namespace qb {

void StandardFormHelper::prepareForm(Form& form) { prepared_.push_back(form.Name()); }

void StandardFormHelper::controlGotFocus(Control& control) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) box->select(0, Len(box->Text()));
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) combo->select(0, Len(combo->Text()));
}

void StandardFormHelper::controlLostFocus(Control& control) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) box->select(Len(box->Text()), 0);
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) combo->select(Len(combo->Text()), 0);
}

void StandardFormHelper::controlKeyUp(Control&, int16_t, int16_t) {}

}  // namespace qb
