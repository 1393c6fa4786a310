#pragma once
// ClientPickerDialog: picks a client of the roster by name. Typing filters
// the list (any part of the name, ignoring case); the arrow keys go from the
// filter box into the list; a double click, Enter or OK takes the
// highlighted client.

#include <QDialog>

#include "app/common/client_roster.h"

class QLineEdit;
class QTreeWidget;

namespace qb::desk {

class ClientPickerDialog : public QDialog {
 public:
  // current: the roster place to highlight at the start (-1 for none).
  ClientPickerDialog(const hosts::ClientRoster& roster, int current, QWidget* parent);

  // The roster place of the client picked, -1 when none is highlighted.
  int picked() const;
  // Shows only the clients whose names contain text.
  void filter(const QString& text);
  QTreeWidget& list() { return *list_; }
  QLineEdit& search() { return *search_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* search_;
  QTreeWidget* list_;
};

}  // namespace qb::desk
