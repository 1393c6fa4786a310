#pragma once
// RichTextInsertClass: puts a piece of text into a rich text box at a
// position, as the merge engine does when the user picks a field. It keeps
// the error object and the locale a caller hands it, for its own reports.

#include <cstdint>
#include <memory>
#include <string>

#include "services/runtime/variant.h"

namespace qb {

class ErrorObject;
class LocaleReference;
class RichTextBox;

class RichTextInsertClass {
 public:
  void setErrorClass(const std::shared_ptr<ErrorObject>& errorObject) { errorClass_ = errorObject; }
  void setLocaleReference(const std::shared_ptr<LocaleReference>& locale) { locale_ = locale; }

  // Inserts text into the box with position characters before it (a
  // negative position counts as 0, one past the end as the end) and leaves
  // the caret behind the new text, replacing nothing. True when text went in.
  Variant insertTextAtPosition(RichTextBox& box, const std::string& text, int32_t position);

 private:
  std::shared_ptr<ErrorObject> errorClass_;
  std::shared_ptr<LocaleReference> locale_;
};

}  // namespace qb
