#include "app/desk/merge_field_lists.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "data/mod_database_functions.h"
#include "gui/list_box_widget.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "render/mod_database_client_functions.h"
#include "services/controls/list_box.h"
#include "services/controls/rich_text_box.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/runtime/strings.h"

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

void setMergeClient(clsInsertFieldsInRTB& fields, const hosts::Client& client) {
  if (client.isCompany) {
    fields.setCompanyID(client.id);
    fields.setContactID(modDatabaseClientFunctions::getDefaultContactIDFromCompanyID(client.id));
    fields.setListType(listTypeCompany);
  } else {
    fields.setContactID(client.id);
    fields.setListType(listTypeContact);
    fields.setConvertCompanyNameToContactNameForContacts(true);
  }
  fields.setFirmID(modDatabaseFunctions::getAccountantFirmID());
  if (LocaleReference* locale = moduleState().localeReference.get()) {
    fields.setUserID(locale->getCurrentUserID());
  }
}

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

MergeFieldLists::MergeFieldLists(clsInsertFieldsInRTB& fields, RichTextBox& target,
                                 const hosts::Client& client, QWidget* parent)
    : QSplitter(Qt::Horizontal, parent),
      fields_(fields),
      target_(target),
      clientFields_(std::make_unique<ListBox>("lstClientFields")),
      firmFields_(std::make_unique<ListBox>("lstFirmFields")) {
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
  addWidget(group("Client fields", clientWidget_, this));
  addWidget(group("Firm fields", firmWidget_, this));
  setStretchFactor(0, 3);
  setStretchFactor(1, 2);

  clientFields_->DblClick = [this] { pick(*clientFields_); };
  firmFields_->DblClick = [this] { pick(*firmFields_); };

  fields_.setListBox(clientFields_.get());
  fields_.setListBox2(firmFields_.get());
  fields_.setRTB(&target_);
  setMergeClient(fields_, client);
  bool bypassListBox = false;
  bool clearListbox = true;
  fields_.createDefaultFieldListStructure(bypassListBox, clearListbox);
  bypassListBox = false;
  fields_.createAccountantFieldListStructure(bypassListBox, clearListbox);
}

MergeFieldLists::~MergeFieldLists() {
  // The widgets stop observing the models before the models go, and the
  // merge drops the boxes it was given.
  delete clientWidget_;
  delete firmWidget_;
  fields_.setListBox(nullptr);
  fields_.setListBox2(nullptr);
}

void MergeFieldLists::pick(ListBox& list) {
  const int32_t line = list.ListIndex();
  if (line < 0) return;
  int32_t item = list.ItemData(line);
  if (&list == firmFields_.get() && item < 0 && list.List(line) == kLetterheadLine) {
    // The letterhead is the host's: the firm's name and address as markers.
    const std::string region =
        inCanada() ? "«Your Province»  «Your Postal Code»" : "«Your State»  «Your Zip Code»";
    insert("«Your Company Name»\n«Your Address»\n«Your City», " + region + "\n");
  } else if (rich_) {
    bool includeBrackets = true;
    insert(fields_.parseListItem(item, includeBrackets));
  } else {
    fields_.onListClick(item);
  }
  if (picked) picked();
}

void MergeFieldLists::insert(const std::string& text) {
  // RTF source writes the brackets and accents as escapes, and a line break
  // as a paragraph.
  target_.setSelText(rich_ ? Replace(toRtfEscapes(text), "\n", "\\par\n") : text);
}

}  // namespace qb::desk
