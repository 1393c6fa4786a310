#pragma once
// The component's category tests: the test host of quillbox_test.h with a
// host form, the form helper, the merge documents category of company 1
// (5, under the main one) and a sub-category "2024" of Taxes (6), and
// helpers that act in the category editor and point at nodes and rows as
// the mouse does.

#include <functional>
#include <string>
#include <vector>

#include "dialogs/frm_edit_doc_category.h"
#include "services/util/standard_form_helper.h"
#include "tests/control/quillbox_test.h"

namespace qb::test {

class CategoryTest : public QuillboxTest {
 protected:
  CategoryTest() {
    locale->ownerForm = &owner;
    locale->formHelper = std::make_shared<StandardFormHelper>();
    db.exec(
        "INSERT INTO DocCategories (DocCategoryID, DocCategoryNum, CompanyIDNum, DocCategoryName,"
        " DocCategorySynchFolder, DocCategorySpecialType) VALUES"
        " (5, 1, 1, 'Merge Documents', '/srv/merge/acme', 2), (6, 2, 1, '2024', NULL, 0);");
  }

  // Acts as the user each time the category editor shows.
  void inEditor(std::function<void(frmEditDocCategory&)> act) {
    installFormService(
        [act](Form& form, OwnerForm*) { act(dynamic_cast<frmEditDocCategory&>(form)); });
  }

  Node& node(int32_t categoryID) {
    return quillbox.tvClientDocumentation().Nodes().item("Category:" + std::to_string(categoryID));
  }
  void select(int32_t categoryID) {
    quillbox.tvClientDocumentation().setSelectedItem(&node(categoryID));
  }
  // A point on the node's row (it must have one), as the mouse gives it.
  float yOf(int32_t categoryID) {
    const float top = quillbox.tvClientDocumentation().rowTop(node(categoryID));
    EXPECT_GE(top, 0) << "category " << categoryID << " has no row on show";
    return top + 100;
  }
  // A point on a list row.
  float yOf(const ListItem& row) { return quillbox.lvDocuments().rowTop(row) + 100; }
  ListItem& row(const std::string& text) {
    ListItemCollection& items = quillbox.lvDocuments().ListItems();
    for (int32_t i = 1; i <= items.Count(); ++i)
      if (items.item(i).Text() == text) return items.item(i);
    ADD_FAILURE() << "no row " << text;
    return items.item(1);
  }
  // The rows' texts in list order, "a;b;".
  std::string rows() {
    std::string text;
    ListItemCollection& items = quillbox.lvDocuments().ListItems();
    for (int32_t i = 1; i <= items.Count(); ++i) text += items.item(i).Text() + ";";
    return text;
  }
  std::vector<std::string> messageTexts() {
    std::vector<std::string> texts;
    for (const auto& message : messages->messages) texts.push_back(message.text);
    return texts;
  }
  std::string count(const std::string& table, const std::string& where) {
    return db.scalar("SELECT COUNT(*) FROM " + table + " WHERE " + where + ";");
  }

  HostForm owner;
};

}  // namespace qb::test
