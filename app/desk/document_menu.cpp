// The host's Documents menu: the component's document and category commands
// from the menu bar, beside its own buttons, keys and pop-up menus.

#include <QMenuBar>

#include "app/desk/client_window.h"
#include "control/nv_document_quillbox.h"
#include "gui/theme_icons.h"

namespace qb::desk {

void ClientWindow::buildDocumentMenu() {
  QMenu* documents = menuBar()->addMenu("&Documents");
  documents->addAction(QIcon::fromTheme("list-add"), "&Add Shortcuts…",
                       QKeySequence("Ctrl+Shift+A"), this, [this] {
                         if (component_) component_->addDocumentFiles();
                       });
  documents->addAction(QIcon::fromTheme("document-open"), "&Open Shortcuts",
                       QKeySequence("Ctrl+Shift+O"), this, [this] {
                         if (component_) component_->openSelectedDocumentsFiles();
                       });
  documents->addAction(QIcon::fromTheme("document-properties"), "&Properties",
                       QKeySequence("Alt+Return"), this, [this] {
                         if (component_) component_->openDocumentProperties();
                       });
  documents->addAction(QIcon::fromTheme("list-remove"), "&Remove Shortcuts", this, [this] {
    if (component_) component_->deleteSelectedDocuments();
  });
  documents->addSeparator();
  // Through the component's button, so a user level that greys it greys this.
  documents->addAction(QIcon::fromTheme("edit-find"), "&Find Shortcut…",
                       QKeySequence("Ctrl+Shift+F"), this, [this] {
                         if (component_) component_->cmdDocManager(3).click();
                       });
  // The category commands on the category selected in the tree; adding goes
  // through the component's button, like finding.
  documents->addSeparator();
  documents->addAction(gui::themeIcon("folder-new"), "New &Category…", QKeySequence("Ctrl+Shift+N"),
                       this, [this] {
                         if (component_) component_->cmdDocManager(4).click();
                       });
  documents->addAction(gui::themeIcon("document-properties"), "&Edit Category…", this, [this] {
    if (component_) component_->editSelectedDocCategoryNode();
  });
  documents->addAction(gui::themeIcon("edit-delete"), "De&lete Category", this, [this] {
    if (component_) component_->deleteSelectedDocCategory();
  });
}

}  // namespace qb::desk
