#pragma once
// MergeFieldsWindow: the merge fields a template for the client on screen
// can use (MergeFieldLists), with a template box below them into which a
// double click on a field puts its marker at the caret.
//
// The window reads the store and locale the component was handed (the
// module state), so it is opened while a client database is hosted.

#include <QDialog>
#include <memory>

#include "app/common/client_roster.h"
#include "app/desk/merge_field_lists.h"

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

  ListBox& clientFields() const { return lists_->clientFields(); }
  ListBox& firmFields() const { return lists_->firmFields(); }
  RichTextBox& templateText() const { return *template_; }
  gui::ListBoxWidget& clientFieldsWidget() const { return lists_->clientFieldsWidget(); }
  gui::ListBoxWidget& firmFieldsWidget() const { return lists_->firmFieldsWidget(); }
  gui::RichTextBoxWidget& templateWidget() const { return *templateWidget_; }

 private:
  std::unique_ptr<RichTextBox> template_;
  std::unique_ptr<clsInsertFieldsInRTB> fields_;
  MergeFieldLists* lists_ = nullptr;
  gui::RichTextBoxWidget* templateWidget_ = nullptr;
};

// Opens the window for the client the host window shows (window-modal, so
// the client can't change under it). Nothing happens without a client.
void openMergeFieldsWindow(ClientWindow& window);

}  // namespace qb::desk
