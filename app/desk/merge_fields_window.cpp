#include "app/desk/merge_fields_window.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "app/desk/client_window.h"
#include "gui/list_box_widget.h"
#include "gui/rich_text_box_widget.h"
#include "gui/theme_icons.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "services/controls/list_box.h"
#include "services/controls/rich_text_box.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"

namespace qb::desk {

namespace {

constexpr const char* kLetterheadLine = "Insert your Letterhead";

struct ProvinceName {
  int32_t code;
  const char* name;
};
constexpr ProvinceName kProvinces[] = {
    {0, "Alberta"},       {1, "British Columbia"},
    {2, "Manitoba"},      {3, "Ontario"},
    {4, "Saskatchewan"},  {8, "Quebec"},
    {9, "Nova Scotia"},   {10, "New Brunswick"},
    {11, "Newfoundland"}, {12, "Prince Edward Island"},
};

// "Ontario, Canada", "United States": the region the lists are built for.
QString regionText() {
  LocaleReference* locale = moduleState().localeReference.get();
  if (locale == nullptr) return {};
  if (locale->getCountryCode() != 1) return "United States";
  QString province = QString("province %1").arg(locale->getProvinceCode());
  for (const ProvinceName& row : kProvinces) {
    if (row.code == locale->getProvinceCode()) province = row.name;
  }
  return province + ", Canada";
}

bool inCanada() {
  LocaleReference* locale = moduleState().localeReference.get();
  return locale != nullptr && locale->getCountryCode() == 1;
}

QWidget* group(const QString& title, QWidget* content, QWidget* parent) {
  auto* box = new QGroupBox(title, parent);
  auto* layout = new QVBoxLayout(box);
  layout->addWidget(content);
  return box;
}

}  // namespace

MergeFieldsWindow::MergeFieldsWindow(const hosts::Client& client, QWidget* parent)
    : QDialog(parent),
      clientFields_(std::make_unique<ListBox>("lstClientFields")),
      firmFields_(std::make_unique<ListBox>("lstFirmFields")),
      template_(std::make_unique<RichTextBox>("rtbTemplate")),
      fields_(std::make_unique<clsInsertFieldsInRTB>()) {
  setWindowTitle("Merge Fields");
  setWindowIcon(gui::themeIcon("insert-text"));
  auto* layout = new QVBoxLayout(this);
  auto* caption = new QLabel(QString("Fields for <b>%1</b> (%2), in the firm's region: %3")
                                 .arg(QString::fromStdString(client.name).toHtmlEscaped(),
                                      client.isCompany ? "company" : "contact", regionText()),
                             this);
  layout->addWidget(caption);

  auto* lists = new QSplitter(Qt::Horizontal, this);
  clientWidget_ = new gui::ListBoxWidget(*clientFields_, nullptr);
  firmWidget_ = new gui::ListBoxWidget(*firmFields_, nullptr);
  // Header and blank lines insert nothing: shown as headings, not picked.
  clientWidget_->setLineStyle([](QListWidgetItem& line, int32_t itemData) {
    if (itemData >= 0) return;
    QFont font = line.font();
    font.setBold(true);
    line.setFont(font);
    line.setFlags(Qt::ItemIsEnabled);
  });
  firmWidget_->setLineStyle([](QListWidgetItem& line, int32_t itemData) {
    if (itemData >= 0) return;
    QFont font = line.font();
    font.setItalic(true);
    line.setFont(font);
  });
  lists->addWidget(group("Client fields", clientWidget_, lists));
  lists->addWidget(group("Firm fields", firmWidget_, lists));
  lists->setStretchFactor(0, 3);
  lists->setStretchFactor(1, 2);
  layout->addWidget(lists, 3);

  layout->addWidget(new QLabel("Double-click a field to put its marker into the template:", this));
  templateWidget_ = new gui::RichTextBoxWidget(*template_, this);
  templateWidget_->setPlaceholderText("Dear «Contact First Name», …");
  layout->addWidget(templateWidget_, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);

  clientFields_->DblClick = [this] { pick(*clientFields_); };
  firmFields_->DblClick = [this] { pick(*firmFields_); };

  fields_->setListBox(clientFields_.get());
  fields_->setListBox2(firmFields_.get());
  fields_->setRTB(template_.get());
  if (client.isCompany) {
    fields_->setCompanyID(client.id);
    fields_->setListType(listTypeCompany);
  } else {
    fields_->setContactID(client.id);
    fields_->setListType(listTypeContact);
  }
  bool bypassListBox = false;
  bool clearListbox = true;
  fields_->createDefaultFieldListStructure(bypassListBox, clearListbox);
  bypassListBox = false;
  fields_->createAccountantFieldListStructure(bypassListBox, clearListbox);
  resize(900, 640);
}

MergeFieldsWindow::~MergeFieldsWindow() {
  // The widgets stop observing the models before the models go.
  delete clientWidget_;
  delete firmWidget_;
  delete templateWidget_;
}

void MergeFieldsWindow::pick(ListBox& list) {
  const int32_t line = list.ListIndex();
  if (line < 0) return;
  int32_t item = list.ItemData(line);
  if (&list == firmFields_.get() && item < 0 && list.List(line) == kLetterheadLine) {
    insertLetterhead();
  } else {
    fields_->onListClick(item);
  }
  templateWidget_->setFocus();
}

void MergeFieldsWindow::insertLetterhead() {
  // The letterhead is the host's: the firm's name and address as markers.
  const std::string region =
      inCanada() ? "«Your Province»  «Your Postal Code»" : "«Your State»  «Your Zip Code»";
  template_->setSelText("«Your Company Name»\n«Your Address»\n«Your City», " + region + "\n");
}

void openMergeFieldsWindow(ClientWindow& window) {
  if (window.component() == nullptr || window.currentClient() < 0) return;
  auto* fields = new MergeFieldsWindow(window.roster().at(window.currentClient()), &window);
  fields->setAttribute(Qt::WA_DeleteOnClose);
  fields->open();
}

}  // namespace qb::desk
