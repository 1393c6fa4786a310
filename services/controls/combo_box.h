#pragma once
// ComboBox: a drop-down list with an edit part. The list (ListControl) is
// 0-based as the platform counts it; each entry carries an ItemData number.
// ListIndex -1 means no entry is chosen. Click is raised when ListIndex
// changes; choosing an entry puts its text in the edit part.

#include <string>

#include "services/controls/list_control.h"

namespace qb {

class ComboBox : public ListControl {
 public:
  using ListControl::ListControl;

  const std::string& Text() const { return text_; }
  // Sets the edit text; ListIndex follows the entry with that exact text, or
  // becomes -1 when none has it.
  void setText(std::string value);
  bool Locked() const { return locked_; }
  void setLocked(bool value);

  Event<void()> Change;

 protected:
  void entryChosen(int32_t index) override { text_ = List(index); }
  void listCleared() override { text_.clear(); }

 private:
  std::string text_;
  bool locked_ = false;
};

}  // namespace qb
