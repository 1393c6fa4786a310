// The demo host's merge window: a merge document opened for the client on
// screen, fields put into it, checked, previewed with samples, merged and
// saved beside the template; and the preview's reading of RTF.

#include "app/desk/merge_document_window.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QMenuBar>
#include <QTextDocument>
#include <QToolButton>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/desk/desktop_services.h"
#include "app/desk/merge_field_lists.h"
#include "app/desk/rtf_reading.h"
#include "gui/desktop_shell.h"
#include "gui/file_dialog_service.h"
#include "gui/list_box_widget.h"
#include "gui/rich_text_box_widget.h"
#include "services/controls/rich_text_box.h"
#include "tests/gui/desk_fixture.h"

namespace qb::test {
namespace {

std::string read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

void write(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

const char* const kLetter =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}\r\n"
    "\\pard\\f0\\fs20 \\'ab(Todays Date, mmmm d, yyyy)\\'bb\\par\r\n"
    "\\b\\'abCompany Name\\'bb\\b0\\par\r\n\\'abAddress\\'bb\\par\r\n"
    "Dear \\'abContact First Name\\'bb,\\par\r\n\\i Your year ends on "
    "\\'ab(Year End Date, mmmm d yyyy)\\'bb.\\i0\\par\r\n}";

class MergeDocument : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    window_->desktop().shell().setUnattended(&launched_);
  }
  std::ostringstream launched_;

  desk::MergeDocumentWindow& open(const std::string& name, const std::string& text) {
    const std::string path = folder_.file(name);
    write(path, text);
    desk::openMergeDocumentWindow(*window_, path);
    settle();
    auto* document = window_->findChild<desk::MergeDocumentWindow*>();
    EXPECT_NE(document, nullptr);
    return *document;
  }
};

TEST_F(MergeDocument, AnRtfLetterIsCheckedPreviewedAndMergedForTheClientOnScreen) {
  // The window can be opened from the Tools menu too.
  bool inMenu = false;
  for (QAction* menu : window_->menuBar()->actions()) {
    if (menu->text() != "&Tools") continue;
    for (QAction* action : menu->menu()->actions()) {
      inMenu = inMenu || action->text() == "Merge &Document…";
    }
  }
  EXPECT_TRUE(inMenu);

  desk::MergeDocumentWindow& document = open("Engagement.omd", kLetter);
  ASSERT_TRUE(document.isVisible());
  EXPECT_TRUE(document.isRichText());
  EXPECT_EQ(document.templateText(), kLetter);  // the file's bytes, as long as not edited
  EXPECT_TRUE(document.check());
  EXPECT_EQ(document.message(), "The template's markers are all good.");
  screenshotOf(document, "merge-document-opened");

  document.preview();
  const QString preview = document.previewText();
  EXPECT_TRUE(preview.contains("ABC Consulting")) << preview.toStdString();
  EXPECT_TRUE(preview.contains("Dear Jane,")) << preview.toStdString();
  EXPECT_FALSE(preview.contains("\\")) << "control words in the preview";
  screenshotOf(document, "merge-document-preview");

  // The merge is saved beside the template, named for the client; a second
  // merge never writes over the first.
  const std::string merged = document.merge();
  EXPECT_EQ(merged, folder_.file("Engagement - Maple Leaf Bakery Ltd.rtf"));
  const std::string rtf = read(merged);
  EXPECT_EQ(rtf.rfind("{\\rtf1\\ansi", 0), 0u);
  EXPECT_NE(rtf.find("\\b Maple Leaf Bakery Ltd.\\b0"), std::string::npos) << rtf;
  EXPECT_NE(rtf.find("Your year ends on December 31 2025"), std::string::npos) << rtf;
  EXPECT_EQ(rtf.find("\\'ab"), std::string::npos) << rtf;
  EXPECT_TRUE(document.message().contains("saved as")) << document.message().toStdString();
  EXPECT_EQ(document.merge(), folder_.file("Engagement - Maple Leaf Bakery Ltd (2).rtf"));
  EXPECT_EQ(read(folder_.file("Engagement.omd")), kLetter);  // the template as it was
}

TEST_F(MergeDocument, AMergeDocumentOfTheClientsListOpensInTheMergeWindow) {
  // The user adds a merge document to the client's list, then opens it.
  const std::string path = folder_.file("Engagement Letter.omd");
  write(path, kLetter);
  window_->desktop().fileDialogService().setShownHook([&](QFileDialog& dialog) {
    dialog.setDirectory(QString::fromStdString(folder_.path().string()));
    dialog.selectFile("Engagement Letter.omd");
    QMetaObject::invokeMethod(&dialog, "accept", Qt::DirectConnection);
  });
  quillbox().cmdDocManager(0).click();
  settle();
  ListView& list = quillbox().lvDocuments();
  ListItem* added = nullptr;
  for (int32_t i = 1; i <= list.ListItems().Count(); ++i) {
    ListItem& item = list.ListItems().item(i);
    if (quillbox().getDocPathFromTag(item.Tag()) == path) added = &item;
  }
  ASSERT_NE(added, nullptr);
  list.setSelectedItem(nullptr);
  list.setSelectedItem(added);
  quillbox().openSelectedDocumentsFiles();
  settle();
  auto* document = window_->findChild<desk::MergeDocumentWindow*>();
  ASSERT_NE(document, nullptr);
  EXPECT_TRUE(document->windowTitle().startsWith("Engagement Letter.omd"));
  EXPECT_EQ(document->templateText(), kLetter);
  // Merged and opened in the desktop's default application.
  const std::string merged = document->merge();
  document->openMerged();
  EXPECT_NE(launched_.str().find("open " + merged), std::string::npos) << launched_.str();
  screenshotOf(*document, "merge-document-from-list");
}

TEST_F(MergeDocument, EachClientsDocumentIsNamedForItAndReadsAsRtf) {
  // A company with accents in its name: the file is named for it, its RTF
  // writes them as the code page's escapes, its default contact is greeted.
  ASSERT_TRUE(window_->showClient(true, 3));
  settle();
  desk::MergeDocumentWindow& company = open("Engagement.omd", kLetter);
  const std::string merged = company.merge();
  EXPECT_EQ(merged, folder_.file("Engagement - C\u00f4t\u00e9 Plomberie Inc.rtf"));
  const std::string rtf = read(merged);
  // The address follows a line end, not a blank, so the first occurrence's
  // guard puts a blank before it.
  EXPECT_NE(rtf.find("\\b C\\'f4t\\'e9 Plomberie Inc.\\b0\\par\r\n 87 rue Principale\\par\r\n"
                     "Dear Pierre,\\par"),
            std::string::npos)
      << rtf;
  EXPECT_EQ(company.message().toStdString(),
            "Merged for C\u00f4t\u00e9 Plomberie Inc.: saved as " + merged + ".");
  // The window shows the document as it reads, not its source.
  const QString shown = company.previewText();
  EXPECT_TRUE(shown.contains("C\u00f4t\u00e9 Plomberie Inc.\n 87 rue Principale\nDear Pierre,"))
      << shown.toStdString();
  EXPECT_TRUE(shown.contains("Your year ends on December 31 2025.")) << shown.toStdString();
  screenshotOf(company, "merge-document-merged");
  company.close();
  settle();

  // A contact: her name stands where the template names the company. The
  // company's address and year end are no fields of hers: the merge removes
  // them (an RTF marker leaves "'bb"), and the window says what the check
  // finds.
  ASSERT_TRUE(window_->showClient(false, 12));
  settle();
  desk::MergeDocumentWindow& contact = open("Engagement.omd", kLetter);
  const std::string hers = contact.merge();
  EXPECT_EQ(hers, folder_.file("Engagement - Anika Sharma.rtf"));
  EXPECT_NE(read(hers).find("\\b Anika Sharma\\b0\\par\r\n'bb\\par\r\nDear Anika,\\par"),
            std::string::npos)
      << read(hers);
  EXPECT_TRUE(contact.message().endsWith(
      "\nThe check of the template: The Orvanta Pad did not recognize: \u00abAddress\u00bb as a "
      "valid placeholder field name."))
      << contact.message().toStdString();
  screenshotOf(contact, "merge-document-merged-contact");
  // Check looks at the template as her merge reads it: the company's name
  // is hers, the address is still no field of hers.
  EXPECT_FALSE(contact.check());
  EXPECT_EQ(contact.message(),
            "The Orvanta Pad did not recognize: \u00abAddress\u00bb as a valid placeholder field "
            "name.");
}

TEST_F(MergeDocument, FieldsGoInAsRtfSourceAndTheCheckSaysWhatIsWrong) {
  desk::MergeDocumentWindow& document = open("Letter.omd", kLetter);
  RichTextBox& editor = document.editor();
  editor.setSelStart(static_cast<int32_t>(editor.Text().size()) - 1);
  // A pick of a field puts its marker as RTF source writes it.
  gui::ListBoxWidget& clients = document.fieldLists().clientFieldsWidget();
  for (int row = 0; row < clients.count(); ++row) {
    if (clients.item(row)->text() != "City") continue;
    clients.setCurrentRow(row);
    emit clients.itemActivated(clients.item(row));
  }
  settle();
  EXPECT_NE(editor.Text().find("\\'abCity\\'bb}"), std::string::npos);
  EXPECT_TRUE(document.edited());
  // The date button offers the fourteen formats.
  QToolButton* today = nullptr;
  for (QToolButton* button : document.findChildren<QToolButton*>()) {
    if (button->text() == "Today's &Date") today = button;
  }
  ASSERT_NE(today, nullptr);
  ASSERT_NE(today->menu(), nullptr);
  ASSERT_EQ(today->menu()->actions().size(), 14);
  today->menu()->actions().at(11)->trigger();  // yyyy
  EXPECT_NE(editor.Text().find("\\'ab(Todays Date, yyyy)\\'bb}"), std::string::npos);

  editor.setText(editor.Text() + "\\'abCompnay Name\\'bb");
  EXPECT_FALSE(document.check());
  EXPECT_EQ(document.message(),
            "The Orvanta Pad did not recognize: «Compnay Name» as a valid placeholder field name.");
  screenshotOf(document, "merge-document-check");
  // Saved, the template takes the system's line breaks.
  ASSERT_TRUE(document.saveTemplate());
  EXPECT_NE(read(folder_.file("Letter.omd")).find("\\'abCompnay Name\\'bb"), std::string::npos);
  EXPECT_NE(read(folder_.file("Letter.omd")).find("\\par\r\n"), std::string::npos);
  EXPECT_FALSE(document.edited());
}

TEST_F(MergeDocument, PlainTextTemplatesAndFilesThatAreNotThere) {
  desk::MergeDocumentWindow& document =
      open("Note.omd", "To <<Company Name>>\r\nRe: «(Year End Date, dd/mm/yy)»\r\n");
  EXPECT_FALSE(document.isRichText());
  const std::string merged = document.merge();
  EXPECT_EQ(merged, folder_.file("Note - Maple Leaf Bakery Ltd.txt"));
  EXPECT_EQ(read(merged), "To Maple Leaf Bakery Ltd.\r\nRe: 31/Dec/25\r\n");
  document.close();
  settle();

  desk::openMergeDocumentWindow(*window_, folder_.file("missing.omd"));
  settle();
  auto* missing = window_->findChild<desk::MergeDocumentWindow*>();
  ASSERT_NE(missing, nullptr);
  EXPECT_TRUE(missing->message().startsWith("Can't read the template"));
}

TEST(RtfReading, TheTextOfAnRtfDocumentWithItsEmphasis) {
  const QString html = desk::rtfToHtml(
      "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red0\\green0\\blue0;}"
      "{\\*\\generator Writer;}\\pard \\b Bold\\b0  and \\i it\\'e9\\i0\\par "
      "\\u8364?5 \\{braces\\} \\\\ tab\\tab end}");
  QTextDocument document;
  document.setHtml(html);
  EXPECT_EQ(document.toPlainText(), "Bold and it\u00e9\n\u20ac5 {braces} \\ tab\tend");
  EXPECT_TRUE(html.contains("font-weight:bold;\">Bold")) << html.toStdString();
  EXPECT_TRUE(html.contains("font-style:italic;\">it")) << html.toStdString();
  EXPECT_FALSE(html.contains("Arial"));
  EXPECT_FALSE(html.contains("Writer"));
}

}  // namespace
}  // namespace qb::test
