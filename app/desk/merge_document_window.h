#pragma once
// MergeDocumentWindow: a merge document (a template file, plain text or RTF)
// opened for the client on screen. The window shows the template (RTF as its
// source) with the merge fields beside it: a double click on a field puts
// its marker at the caret, the Today's Date button the marker of today's
// date in one of its formats. Check tells what the template check says,
// Preview merges the sample values, Merge merges the client's data and saves
// the document beside the template under a name that says for whom, which
// Open shows in the desktop's default application. An RTF template's merged
// document is RTF with the template's formatting.
//
// The window reads the store and locale the component was handed (the
// module state), so it is opened while a client database is hosted.

#include <QDialog>
#include <functional>
#include <memory>
#include <string>

#include "app/common/client_roster.h"

class QBoxLayout;
class QLabel;
class QPushButton;
class QTabWidget;
class QTextBrowser;

namespace qb {
class clsInsertFieldsInRTB;
class RichTextBox;
}  // namespace qb

namespace qb::gui {
class RichTextBoxWidget;
}  // namespace qb::gui

namespace qb::desk {

class ClientWindow;
class MergeFieldLists;

class MergeDocumentWindow : public QDialog {
 public:
  // Opens the template at path for the client. A file that can't be read
  // leaves the window with the reason in its message line.
  MergeDocumentWindow(const std::string& path, const hosts::Client& client, QWidget* parent);
  ~MergeDocumentWindow() override;

  // The template as the merge takes it: the file's bytes, or the edited
  // text with the system's line breaks.
  std::string templateText() const;
  bool isRichText() const { return rich_; }

  // The template check with messages, on the template as the merge for the
  // client reads it; true when the template is good. The message (or that
  // it is good) shows in the message line.
  bool check();
  // Merges the sample values and shows the result in the Preview tab.
  void preview();
  // Merges the client's data, saves the document beside the template and
  // shows it in the second tab; the path written, or "" when nothing could
  // be written.
  std::string merge();
  // Opens the document the last merge saved in the desktop's default
  // application.
  void openMerged();
  // True when the template was changed since it was read or saved.
  bool edited() const { return edited_; }
  // Writes the edited template back to its file.
  bool saveTemplate();

  // What the window shows, for tests.
  QString message() const;
  // The text of the second tab: the preview or the merged document.
  QString previewText() const;
  MergeFieldLists& fieldLists() const { return *lists_; }
  RichTextBox& editor() const { return *template_; }
  gui::RichTextBoxWidget& editorWidget() const { return *templateWidget_; }
  // Where a merge for this client is saved.
  std::string mergedPath() const;

  // Opens a document with the desktop's default application (the host's
  // shell; by default the desktop services of Qt).
  std::function<void(const std::string& path)> openDocument;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildButtons(QBoxLayout* layout);
  void load();
  void say(const QString& text, bool problem);
  // The template check with messages on text; true when good, else the
  // message raised (empty when the check failed without one).
  bool testTemplate(std::string text, std::string& message);
  // The merge set for the client, in test mode or not.
  std::string mergeText(bool test);
  // The template as the merge for the client reads it (a contact's name
  // standing for the company's), which the check looks at.
  std::string mergeSource();
  // Shows a merged text (RTF as it reads) in the second tab, under caption.
  void showMerged(const std::string& merged, const QString& caption);

  std::string path_;
  hosts::Client client_;
  std::string original_;  // the file's bytes
  bool edited_ = false;   // the template was changed since it was read or saved
  bool rich_ = false;
  std::unique_ptr<RichTextBox> template_;
  std::unique_ptr<clsInsertFieldsInRTB> fields_;
  MergeFieldLists* lists_ = nullptr;
  gui::RichTextBoxWidget* templateWidget_ = nullptr;
  QTabWidget* tabs_ = nullptr;
  QTextBrowser* preview_ = nullptr;
  QLabel* message_ = nullptr;
  QPushButton* open_ = nullptr;
  std::string merged_;  // the document the last merge saved
};

// Opens a merge document for the client the host window shows. Nothing
// happens without a client.
void openMergeDocumentWindow(ClientWindow& window, const std::string& path);
// Asks for a merge document with the desktop's file dialog, then opens it.
void chooseMergeDocument(ClientWindow& window);

}  // namespace qb::desk
