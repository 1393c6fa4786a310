#include "services/controls/rich_text_box.h"

#include <algorithm>

#include "services/controls/control_failures.h"
#include "services/runtime/strings.h"

namespace qb {

void RichTextBox::setText(std::string value) {
  text_ = std::move(value);
  selStart_ = 0;
  selLength_ = 0;
  notify(ControlChange::Text);
  Change.raise();
}

void RichTextBox::setSelStart(int32_t value) {
  if (value < 0) control_failures::invalidProperty();
  selStart_ = std::min(value, Len(text_));
  selLength_ = 0;
  notify(ControlChange::Selection);
}

void RichTextBox::setSelLength(int32_t value) {
  if (value < 0) control_failures::invalidProperty();
  selLength_ = std::min(value, Len(text_) - selStart_);
  notify(ControlChange::Selection);
}

std::string RichTextBox::SelText() const { return Mid(text_, selStart_ + 1, selLength_); }

void RichTextBox::setSelText(const std::string& value) {
  text_ = qb::Left(text_, selStart_) + value + Mid(text_, selStart_ + selLength_ + 1);
  selStart_ += Len(value);
  selLength_ = 0;
  notify(ControlChange::Text);
  notify(ControlChange::Selection);
  Change.raise();
}

void RichTextBox::setLocked(bool value) {
  locked_ = value;
  notify(ControlChange::Appearance);
}

}  // namespace qb
