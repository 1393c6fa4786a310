#pragma once
// MergeFieldLists: the merge fields a template for a client can use, as the
// merge engine lists them: the client's fields with their category headers
// on the left, the firm's own fields ("Your ...") with "Insert your
// Letterhead" on the right, for the firm's locale. A double click (or Enter)
// on a field puts its marker into the template box at the caret; the
// letterhead line puts the firm's name and address there. In an RTF
// template the marker goes in as RTF source writes it (\'ab...\'bb).
//
// The lists read the store and locale the component was handed (the module
// state), so they are made while a client database is hosted.

#include <QSplitter>
#include <functional>
#include <memory>

#include "app/common/client_roster.h"

namespace qb {
class clsInsertFieldsInRTB;
class ListBox;
class RichTextBox;
}  // namespace qb

namespace qb::gui {
class ListBoxWidget;
}  // namespace qb::gui

namespace qb::desk {

// Sets the merge for a client of the host: a company with its default
// contact (list type 1), or a contact by itself (list type 3) whose name
// stands where a template asks for the company's; the firm, and the user of
// the locale.
void setMergeClient(clsInsertFieldsInRTB& fields, const hosts::Client& client);

// "Ontario, Canada", "United States": the region the lists are built for.
QString regionText();

class MergeFieldLists : public QSplitter {
 public:
  // Fills both lists of fields for the client into fields' list boxes;
  // picks go into target.
  MergeFieldLists(clsInsertFieldsInRTB& fields, RichTextBox& target, const hosts::Client& client,
                  QWidget* parent);
  ~MergeFieldLists() override;

  ListBox& clientFields() const { return *clientFields_; }
  ListBox& firmFields() const { return *firmFields_; }
  gui::ListBoxWidget& clientFieldsWidget() const { return *clientWidget_; }
  gui::ListBoxWidget& firmFieldsWidget() const { return *firmWidget_; }

  // True when picks go into RTF source.
  void setRichText(bool rich) { rich_ = rich; }
  // Called after a pick put something into the template.
  std::function<void()> picked;

 private:
  void pick(ListBox& list);
  void insert(const std::string& text);

  clsInsertFieldsInRTB& fields_;
  RichTextBox& target_;
  std::unique_ptr<ListBox> clientFields_;
  std::unique_ptr<ListBox> firmFields_;
  gui::ListBoxWidget* clientWidget_ = nullptr;
  gui::ListBoxWidget* firmWidget_ = nullptr;
  bool rich_ = false;
};

}  // namespace qb::desk
