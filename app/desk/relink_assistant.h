#pragma once
// RelinkAssistant: "everything under this old folder now lives under that
// new one". The user gives the two folders (the new one can be browsed for),
// Preview lists every link under the old folder with its new path and
// whether the file is there; Apply asks for a confirmation, then points the
// links whose file is at the new place there and shows how each went. The
// others stay as they were; files are never touched.

#include <QDialog>
#include <functional>

#include "links/link_record.h"
#include "links/relink.h"

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTreeWidget;

namespace qb::desk {

class RelinkAssistant : public QDialog {
 public:
  // scope: the links taken (the whole firm, or one client's); oldFolder: a
  // first guess for the old folder, from the link the user chose.
  RelinkAssistant(const links::LinkScope& scope, const QString& oldFolder, QWidget* parent);

  // Checks the folders and lists the links under the old one; false, with
  // the reason shown, when a folder is refused.
  bool preview();
  // After a confirmation, relinks the found links of the preview.
  void apply();

  // True once Apply changed at least one link.
  bool changedLinks() const { return changed_; }
  const links::RelinkPlan& plan() const { return plan_; }

  QLineEdit& oldFolderEdit() const { return *oldFolder_; }
  QLineEdit& newFolderEdit() const { return *newFolder_; }
  QTreeWidget& table() const { return *table_; }
  QLabel& status() const { return *status_; }
  QPushButton& applyButton() const { return *apply_; }

  // Asks the user to go ahead; a message box unless replaced (tests answer
  // here). True to go ahead.
  std::function<bool(const QString& question)> confirm;

 private:
  void browseNewFolder();
  void showPlan(const std::vector<links::RepointOutcome>* outcomes);
  void refuse(const QString& reason);

  links::LinkScope scope_;
  links::RelinkPlan plan_;
  bool previewed_ = false;
  bool changed_ = false;
  QLineEdit* oldFolder_ = nullptr;
  QLineEdit* newFolder_ = nullptr;
  QTreeWidget* table_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QLabel* status_ = nullptr;
  QPushButton* preview_ = nullptr;
  QPushButton* apply_ = nullptr;
};

}  // namespace qb::desk
