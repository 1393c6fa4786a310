#pragma once
// MergeFieldsWindow: the merge fields a template for the client on screen
// can use, as the merge engine lists them: the client's fields with their
// category headers on the left, the firm's own fields ("Your ...") with
// "Insert your Letterhead" on the right, for the firm's locale. A double
// click (or Enter) on a field puts its marker into the template below at the
// caret; the letterhead line puts the firm's name and address there.
//
// The window reads the store and locale the component was handed (the
// module state), so it is opened while a client database is hosted.

#include <QDialog>
#include <memory>

#include "app/common/client_roster.h"

namespace qb {
class clsInsertFieldsInRTB;
class ListBox;
class RichTextBox;
}  // namespace qb

namespace qb::gui {
class ListBoxWidget;
class RichTextBoxWidget;
}  // namespace qb::gui

namespace qb::desk {

class ClientWindow;

class MergeFieldsWindow : public QDialog {
 public:
  // Builds both lists for the client: a company's fields with its default
  // contact's, or a contact's own.
  MergeFieldsWindow(const hosts::Client& client, QWidget* parent);
  ~MergeFieldsWindow() override;

  ListBox& clientFields() const { return *clientFields_; }
  ListBox& firmFields() const { return *firmFields_; }
  RichTextBox& templateText() const { return *template_; }
  gui::ListBoxWidget& clientFieldsWidget() const { return *clientWidget_; }
  gui::ListBoxWidget& firmFieldsWidget() const { return *firmWidget_; }
  gui::RichTextBoxWidget& templateWidget() const { return *templateWidget_; }

 private:
  void pick(ListBox& list);
  void insertLetterhead();

  std::unique_ptr<ListBox> clientFields_;
  std::unique_ptr<ListBox> firmFields_;
  std::unique_ptr<RichTextBox> template_;
  std::unique_ptr<clsInsertFieldsInRTB> fields_;
  gui::ListBoxWidget* clientWidget_ = nullptr;
  gui::ListBoxWidget* firmWidget_ = nullptr;
  gui::RichTextBoxWidget* templateWidget_ = nullptr;
};

// Opens the window for the client the host window shows (window-modal, so
// the client can't change under it). Nothing happens without a client.
void openMergeFieldsWindow(ClientWindow& window);

}  // namespace qb::desk
