#pragma once
// LinkHealthWindow: every document link of the firm, or of the client on
// screen, with the state of its file, grouped by client and filtered by
// state ("Broken links" first). A row opens the link's properties dialog,
// where a moved file can be found again; "Relink Folder…" opens the relink
// assistant for links whose folder moved. The check runs when the window
// opens and again on "Check Again", with its progress below the filter.
//
// The window reads the store the component was handed (the module state),
// so it is opened while a client database is hosted, window-modal.

#include <QDialog>
#include <functional>
#include <vector>

#include "links/link_check.h"
#include "links/link_groups.h"

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace qb::desk {

class ClientWindow;

class LinkHealthWindow : public QDialog {
 public:
  // A firm-wide window; the scope combo also offers the client on screen.
  explicit LinkHealthWindow(ClientWindow& window);

  // Runs the check for the chosen scope and shows its results.
  void check();
  // Shows the links of a filter (the combo follows).
  void setFilter(const links::StateFilter& filter);
  // Limits the check to the client on screen (true) or the whole firm.
  void setClientOnly(bool clientOnly);
  // Opens the properties dialog of the link on the row, then checks that
  // link again and refreshes the client window's list.
  void openProperties(QTreeWidgetItem* row);
  // Opens the relink assistant, its old folder taken from the selected
  // link; checks again when it changed links.
  void openRelinkAssistant();

  const std::vector<links::CheckedLink>& results() const { return checked_; }
  QTreeWidget& tree() const { return *tree_; }
  QLabel& summary() const { return *summary_; }
  QComboBox& filterBox() const { return *filter_; }
  // The link of a row; nullptr for a client's row.
  const links::CheckedLink* linkOf(const QTreeWidgetItem* row) const;

  // Called with the assistant before it is shown (tests act in it).
  std::function<void(class RelinkAssistant&)> onAssistantShown;

 private:
  void showResults();
  void updateButtons();
  links::LinkScope scope() const;

  ClientWindow& window_;
  std::vector<links::CheckedLink> checked_;
  links::StateFilter filterState_;
  QComboBox* scope_ = nullptr;
  QComboBox* filter_ = nullptr;
  QPushButton* checkAgain_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QTreeWidget* tree_ = nullptr;
  QLabel* summary_ = nullptr;
  QPushButton* properties_ = nullptr;
  QPushButton* relink_ = nullptr;
};

// Opens the window over the client window (window-modal) and starts its
// check. Nothing happens without a database.
LinkHealthWindow* openLinkHealthWindow(ClientWindow& window);

}  // namespace qb::desk
