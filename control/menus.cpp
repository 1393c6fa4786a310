// The four pop-up menus of the tree and the list. They are hidden from the
// menu bar and exist for pop-up use only. Items with a number behind their
// name are the second copy of a command on the second menu; each copy has its
// own click handler, all alike. No handler checks, greys or hides an item.

#include <functional>
#include <string>
#include <vector>

#include "control/nv_document_quillbox.h"
#include "services/errors/procedure.h"

namespace qb {

namespace {

// One entry: its name and caption ("-" for a separator), and the entries of
// its sub-menu.
struct MenuEntry {
  const char* name;
  const char* caption;
  std::vector<MenuEntry> children = {};
};

// The list menus share their entries; the second copy takes the names with
// suffix.
std::vector<MenuEntry> listEntries(bool second) {
  auto named = [second](const char* plain, const char* numbered) {
    return second ? numbered : plain;
  };
  return {
      {named("mnuAddFiles", "mnuAddFiles2"), "Add Shortcuts"},
      {named("mnuRemoveFiles", "mnuRemoveFiles2"), "Remove Shortcuts"},
      {named("mnuSeparator1", "mnuSeparator5"), "-"},
      {named("mnuView", "mnuView2"),
       "View",
       {{named("mnuIconsView", "mnuIconsView2"), "Icons"},
        {named("mnuSmallIconsView", "mnuSmallIconsView2"), "Small Icons"},
        {named("mnuListView", "mnuListView2"), "List"},
        {named("mnuDetailsView", "mnuDetailsView2"), "Details"}}},
      {named("mnuArrangeIcons", "mnuArrangeIcons2"),
       "Arrange Icons",
       {{named("mnuArrangeIconsNone", "mnuArrangeIconsNone2"), "None"},
        {named("mnuArrangeIconsTop", "mnuArrangeIconsTop2"), "Arrange to Top"},
        {named("mnuArrangeIconsLeft", "mnuArrangeIconsLeft2"), "Arrange to Left"}}},
      {named("mnuSort", "mnuSort2"),
       "Sort Shortcuts",
       {{named("mnuSortNone", "mnuSortNone2"), "None"},
        {named("mnuSortAscending", "mnuSortAscending2"), "Ascending Alphabetically"},
        {named("mnuSortDescending", "mnuSortDescending2"), "Descending Alphabetically"}}},
      {named("mnuSeparator2", "mnuSeparator16"), "-"},
      {named("mnuRefresh", "mnuRefresh2"), "Refresh List"},
      {named("mnuSeparator9", "mnuSeparator8"), "-"},
      // The properties items have their numbers the other way round.
      {named("mnuDocProperties2", "mnuDocProperties"), "Properties"},
  };
}

void addEntries(MenuItem& menu, const std::vector<MenuEntry>& entries) {
  for (const MenuEntry& entry : entries) {
    addEntries(menu.add(entry.name, entry.caption), entry.children);
  }
}

}  // namespace

void nvDocumentQuillbox::buildMenus() {
  MenuItem& listMenu = menus_.add("subMnuListViewRightClick", "ListViewRightClick");
  addEntries(listMenu, listEntries(false));

  MenuItem& rowMenu = menus_.add("subMnuListViewNodeRightClick", "ListViewNodeRightClick");
  addEntries(rowMenu, {{"mnuOpenFile", "Open Shortcuts"}, {"mnuSeparator7", "-"}});
  addEntries(rowMenu, listEntries(true));

  MenuItem& treeMenu = menus_.add("subMnuDocTreeViewRightClick", "DocTreeViewRightClick");
  addEntries(treeMenu, {{"mnuAddCategory", "Add New Category"}});

  MenuItem& nodeMenu = menus_.add("subMnuDocTreeViewNodeRightClick", "DocTreeViewNodeRightClick");
  addEntries(nodeMenu, {{"mnuAddCategory2", "Add New subCategory to this Category"},
                        {"mnuSeparator3", "-"},
                        {"mnuEditCategory", "Edit this Category"},
                        {"mnuDeleteCategory", "Delete this Category"},
                        {"mnuSeparator4", "-"},
                        {"mnuAddFilesToCategory", "Add shortcuts to this Category"},
                        {"mnuSeparator17", "-"},
                        {"mnuDocCategoriesProperties", "Properties"}});

  for (MenuItem* menu : {&listMenu, &rowMenu, &treeMenu, &nodeMenu}) menu->setVisible(false);
  subMnuListViewRightClick_ = &listMenu;
  subMnuListViewNodeRightClick_ = &rowMenu;
  subMnuDocTreeViewRightClick_ = &treeMenu;
  subMnuDocTreeViewNodeRightClick_ = &nodeMenu;

  // The items of both list menus: the documents, the view, arrangement, sort
  // and refresh.
  struct Command {
    const char* item;
    std::function<void()> run;
  };
  const Command commands[] = {
      {"mnuIconsView", [this] { changeDocListViewView(viewIcons); }},
      {"mnuSmallIconsView", [this] { changeDocListViewView(viewSmallIcons); }},
      {"mnuListView", [this] { changeDocListViewView(viewList); }},
      {"mnuDetailsView", [this] { changeDocListViewView(viewDetails); }},
      {"mnuArrangeIconsNone", [this] { changeDocListViewArrangeIcons(arrangeIconsNone); }},
      {"mnuArrangeIconsTop", [this] { changeDocListViewArrangeIcons(arrangeIconsTop); }},
      {"mnuArrangeIconsLeft", [this] { changeDocListViewArrangeIcons(arrangeIconsLeft); }},
      {"mnuSortNone", [this] { changeDocListViewSort(sortNone); }},
      {"mnuSortAscending", [this] { changeDocListViewSort(sortAscending); }},
      {"mnuSortDescending", [this] { changeDocListViewSort(SortDescending); }},
      {"mnuRefresh", [this] { refreshDocListView(); }},
      {"mnuAddFiles", [this] { addDocumentFiles(); }},
      {"mnuRemoveFiles", [this] { deleteSelectedDocuments(); }},
      {"mnuDocProperties", [this] { openDocumentProperties(); }},
  };
  for (const Command& command : commands) {
    for (const std::string& name : {std::string(command.item), std::string(command.item) + "2"}) {
      menus_.find(name)->Click = [this, name, run = command.run] { menuCommand(name, run); };
    }
  }
  // Opening is on the row menu only.
  menus_.find("mnuOpenFile")->Click = [this] {
    menuCommand("mnuOpenFile", [this] { openSelectedDocumentsFiles(); });
  };
  // The tree's two menus.
  const Command treeCommands[] = {
      {"mnuAddCategory", [this] { addNewDocumentCategory(); }},
      {"mnuAddCategory2", [this] { addNewDocumentCategory(); }},
      {"mnuEditCategory", [this] { editSelectedDocCategoryNode(); }},
      {"mnuDeleteCategory", [this] { deleteSelectedDocCategory(); }},
      {"mnuAddFilesToCategory", [this] { addDocumentFiles(); }},
      {"mnuDocCategoriesProperties", [this] { editSelectedDocCategoryNode(); }},
  };
  for (const Command& command : treeCommands) {
    const std::string name = command.item;
    menus_.find(name)->Click = [this, name, run = command.run] { menuCommand(name, run); };
  }
}

void nvDocumentQuillbox::menuCommand(const std::string& itemName,
                                     const std::function<void()>& command) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-" + itemName + "_Click");
  proc.step(command);
}

}  // namespace qb
