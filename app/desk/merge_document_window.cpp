#include "app/desk/merge_document_window.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/desk/client_window.h"
#include "app/desk/desktop_services.h"
#include "app/desk/merge_field_lists.h"
#include "app/desk/rtf_reading.h"
#include "gui/desktop_shell.h"
#include "gui/file_dialogs.h"
#include "gui/rich_text_box_widget.h"
#include "gui/theme_icons.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "services/controls/rich_text_box.h"
#include "services/host/clock.h"
#include "services/host/message_object.h"
#include "services/host/module_state.h"
#include "services/runtime/format.h"
#include "services/runtime/strings.h"

namespace qb::desk {

namespace {

namespace fs = std::filesystem;

bool startsAsRtf(const std::string& text) { return text.rfind("{\\rtf", 0) == 0; }

// A client's name as a part of a file name: no folder separators or other
// characters file managers refuse, and no dot at its end to run into the
// extension ("Ltd." gives "Ltd.rtf", not "Ltd..rtf").
std::string fileNamePart(const std::string& name) {
  std::string part;
  for (char c : name) part += std::string("/\\:*?\"<>|").find(c) == std::string::npos ? c : '-';
  part = Trim(part);
  while (!part.empty() && (part.back() == '.' || part.back() == ' ')) part.pop_back();
  return part.empty() ? std::string("client") : part;
}

}  // namespace

MergeDocumentWindow::MergeDocumentWindow(const std::string& path, const hosts::Client& client,
                                         QWidget* parent)
    : QDialog(parent),
      path_(path),
      client_(client),
      template_(std::make_unique<RichTextBox>("rtbTemplate")),
      fields_(std::make_unique<clsInsertFieldsInRTB>()) {
  setWindowTitle(QString("%1 — Merge for %2")
                     .arg(QFileInfo(QString::fromStdString(path)).fileName(),
                          QString::fromStdString(client.name)));
  setWindowIcon(gui::themeIcon("x-office-document"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(
      new QLabel(QString("Merge document <b>%1</b> for <b>%2</b> (%3), in the firm's region: %4")
                     .arg(QString::fromStdString(path).toHtmlEscaped(),
                          QString::fromStdString(client.name).toHtmlEscaped(),
                          client.isCompany ? "company" : "contact", regionText()),
                 this));

  auto* split = new QSplitter(Qt::Horizontal, this);
  lists_ = new MergeFieldLists(*fields_, *template_, client, split);
  tabs_ = new QTabWidget(split);
  templateWidget_ = new gui::RichTextBoxWidget(*template_, nullptr);
  tabs_->addTab(templateWidget_, "Template");
  preview_ = new QTextBrowser(nullptr);
  tabs_->addTab(preview_, "Preview");
  split->addWidget(lists_);
  split->addWidget(tabs_);
  split->setStretchFactor(0, 2);
  split->setStretchFactor(1, 3);
  layout->addWidget(split, 1);
  template_->Change = [this] { edited_ = true; };
  lists_->picked = [this] {
    tabs_->setCurrentWidget(templateWidget_);
    templateWidget_->setFocus();
  };

  message_ = new QLabel(this);
  message_->setWordWrap(true);
  message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(message_);
  buildButtons(layout);
  load();
  resize(1100, 720);
}

MergeDocumentWindow::~MergeDocumentWindow() {
  // The widgets stop observing the models before the models go.
  delete lists_;
  delete templateWidget_;
  fields_->setRTB(nullptr);
}

void MergeDocumentWindow::buildButtons(QBoxLayout* layout) {
  auto* buttons = new QDialogButtonBox(this);
  // Today's date in the fourteen formats, each shown as it reads today.
  auto* today = new QToolButton(this);
  today->setText("Today's &Date");
  today->setIcon(gui::themeIcon("x-office-calendar"));
  today->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  today->setPopupMode(QToolButton::InstantPopup);
  auto* formats = new QMenu(today);
  for (int32_t index = 1; index <= static_cast<int32_t>(mergeFormatTable.size()); ++index) {
    const QString example =
        QString::fromStdString(Format(Variant::date(hostToday()), mergeFormat(index)));
    formats->addAction(QString("%1   (%2)").arg(example, mergeFormat(index)), this, [this, index] {
      int32_t chosen = index;
      if (rich_) {
        bool includeBrackets = true;
        template_->setSelText(
            toRtfEscapes(fields_->insertCurrentDateMergeField(chosen, includeBrackets)));
      } else {
        fields_->insertCurrentDate(chosen);
      }
      tabs_->setCurrentWidget(templateWidget_);
    });
  }
  today->setMenu(formats);
  buttons->addButton(today, QDialogButtonBox::ActionRole);
  auto add = [&](const QString& text, const char* icon, auto action) {
    QPushButton* button = buttons->addButton(text, QDialogButtonBox::ActionRole);
    button->setIcon(gui::themeIcon(icon));
    connect(button, &QPushButton::clicked, this, action);
    return button;
  };
  add("&Check", "dialog-ok", [this] { check(); });
  add("&Preview", "document-print-preview", [this] { preview(); });
  add("&Merge", "document-save-as", [this] { merge(); });
  open_ = add("&Open Merged Document", "document-open", [this] { openMerged(); });
  open_->setEnabled(false);
  add("&Save Template", "document-save", [this] { saveTemplate(); });
  buttons->addButton(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
  layout->addWidget(buttons);
}

void MergeDocumentWindow::load() {
  std::ifstream file(path_, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  if (!file || !fs::is_regular_file(path_)) {
    say(QString("Can't read the template %1.").arg(QString::fromStdString(path_)), true);
    return;
  }
  original_ = bytes.str();
  rich_ = startsAsRtf(original_);
  lists_->setRichText(rich_);
  if (rich_) {
    // RTF is edited as its source, in a fixed-width font.
    templateWidget_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    tabs_->setTabText(0, "Template (RTF source)");
  }
  template_->setText(Replace(original_, "\r\n", "\n"));
  edited_ = false;
  say(rich_ ? "An RTF template: fields go in as RTF source writes them." : "A text template.",
      false);
}

std::string MergeDocumentWindow::templateText() const {
  if (!edited_) return original_;
  return Replace(template_->Text(), "\n", "\r\n");
}

void MergeDocumentWindow::say(const QString& text, bool problem) {
  message_->setText(text);
  message_->setStyleSheet(problem ? "color: #a40000;" : "");
}

bool MergeDocumentWindow::testTemplate(std::string text, std::string& message) {
  message.clear();
  fields_->testErrorComment = [&](std::string& raised) { message = raised; };
  const bool bad = fields_->testRTBComment(text, rich_, true, false);
  fields_->testErrorComment = nullptr;
  message = Replace(message, "\r\n", "\n");
  return !bad;
}

bool MergeDocumentWindow::check() {
  std::string message;
  const bool good = testTemplate(mergeSource(), message);
  if (good) {
    say("The template's markers are all good.", false);
  } else {
    say(message.empty() ? QString("The check of the template failed.")
                        : QString::fromStdString(message),
        true);
  }
  return good;
}

std::string MergeDocumentWindow::mergeText(bool test) {
  clsInsertFieldsInRTB merge;
  setMergeClient(merge, client_);
  merge.setTestComment(test);
  merge.setConvertStrToRTF(rich_);
  merge.initializeDataRecordsetsForSingleDocMerge();
  merge.setTemplateText(templateText());
  return merge.parseRTBComment();
}

std::string MergeDocumentWindow::mergeSource() {
  clsInsertFieldsInRTB merge;
  setMergeClient(merge, client_);
  merge.setTemplateText(templateText());
  return merge.mergedTemplateSource();
}

void MergeDocumentWindow::showMerged(const std::string& merged, const QString& caption) {
  if (rich_) {
    preview_->setHtml(rtfToHtml(merged));
  } else {
    preview_->setPlainText(QString::fromStdString(merged));
  }
  tabs_->setTabText(tabs_->indexOf(preview_), caption);
  tabs_->setCurrentWidget(preview_);
}

void MergeDocumentWindow::preview() {
  showMerged(mergeText(true), "Preview");
  say("The preview shows the fields' sample values.", false);
}

std::string MergeDocumentWindow::mergedPath() const {
  const fs::path templatePath(path_);
  const std::string stem = templatePath.stem().string() + " - " + fileNamePart(client_.name);
  const std::string extension = rich_ ? ".rtf" : ".txt";
  // An earlier merge's document is never written over.
  fs::path candidate = templatePath.parent_path() / (stem + extension);
  for (int n = 2; fs::exists(candidate); ++n) {
    candidate = templatePath.parent_path() / (stem + " (" + std::to_string(n) + ")" + extension);
  }
  return candidate.string();
}

std::string MergeDocumentWindow::merge() {
  const std::string merged = mergeText(false);
  const std::string target = mergedPath();
  std::ofstream file(target, std::ios::binary);
  file << merged;
  file.close();
  if (!file) {
    say(QString("The merged document could not be written to %1.")
            .arg(QString::fromStdString(target)),
        true);
    return "";
  }
  merged_ = target;
  open_->setEnabled(true);
  showMerged(merged, "Merged Document");
  QString said = QString("Merged for %1: saved as %2.")
                     .arg(QString::fromStdString(client_.name), QString::fromStdString(target));
  // The merge removes what names no field of this client; the check says
  // what that was, so that a marker gone missing does not go unnoticed.
  std::string problem;
  const bool good = testTemplate(mergeSource(), problem);
  if (!good && !problem.empty())
    said += "\nThe check of the template: " + QString::fromStdString(problem);
  say(said, !good);
  return target;
}

void MergeDocumentWindow::openMerged() {
  if (merged_.empty()) return;
  if (openDocument) {
    openDocument(merged_);
  } else {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(merged_)));
  }
}

bool MergeDocumentWindow::saveTemplate() {
  const std::string text = templateText();
  const std::string temporary = path_ + ".saving";
  {
    std::ofstream file(temporary, std::ios::binary);
    file << text;
    file.close();
    if (!file) {
      say(QString("The template could not be saved to %1.").arg(QString::fromStdString(path_)),
          true);
      return false;
    }
  }
  // The old file is replaced only once the new one is whole.
  std::error_code failed;
  fs::rename(temporary, path_, failed);
  if (failed) {
    fs::remove(temporary, failed);
    say(QString("The template could not be saved to %1.").arg(QString::fromStdString(path_)), true);
    return false;
  }
  original_ = text;
  edited_ = false;
  say("The template is saved.", false);
  return true;
}

QString MergeDocumentWindow::message() const { return message_->text(); }

QString MergeDocumentWindow::previewText() const { return preview_->toPlainText(); }

void MergeDocumentWindow::closeEvent(QCloseEvent* event) {
  MessageObject* messages = moduleState().msgboxClass.get();
  if (edited_ && messages != nullptr) {
    int32_t answer = 1;
    messages->askMessage("The template has changes that are not saved. Save them?", 4, nullptr,
                         answer);
    if (answer == 0) saveTemplate();
  }
  event->accept();
}

void openMergeDocumentWindow(ClientWindow& window, const std::string& path) {
  if (window.component() == nullptr || window.currentClient() < 0) return;
  auto* document =
      new MergeDocumentWindow(path, window.roster().at(window.currentClient()), &window);
  document->setAttribute(Qt::WA_DeleteOnClose);
  document->openDocument = [&window](const std::string& merged) {
    window.desktop().shell().ShellExecuteA(0, "open", merged, "", "", 1);
  };
  document->open();
}

void chooseMergeDocument(ClientWindow& window) {
  if (window.component() == nullptr || window.currentClient() < 0) return;
  QFileDialog dialog(&window, "Open Merge Document");
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters({"Merge documents (*.omd *.rtf *.txt)", "All files (*)"});
  // The folder chosen last for a merge document is where the next choice
  // starts.
  const QStringList chosen = gui::runFileDialog(dialog, "merge documents", QDir::homePath());
  if (!chosen.isEmpty()) openMergeDocumentWindow(window, chosen.front().toStdString());
}

}  // namespace qb::desk
