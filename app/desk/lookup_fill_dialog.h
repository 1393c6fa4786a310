#pragma once
// LookupFillDialog: fills a lookup column from the Tools menu. The user
// chooses the record family, one of its lookup columns (those the firm's
// settings make lookups) and the merge field the column mirrors, and the
// tax year for personal tax rows; Fill runs the bulk fill with a progress
// dialog fed by its events. The run gives the event pump two turns per
// client, so the window repaints and answers while it works; every value is
// committed as it is written, so closing the program midway loses nothing
// written.
//
// The dialog reads the store and locale the component was handed (the
// module state), so it is opened while a client database is hosted.

#include <QDialog>
#include <functional>

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;

namespace qb::desk {

class ClientWindow;

// The progress of a fill: what is filled, a bar, and the count with the
// rate and the time left. It can't be dismissed while the fill runs.
class FillProgressDialog : public QDialog {
 public:
  FillProgressDialog(const QString& what, QWidget* parent);
  void setTotal(int total);
  void setDone(int done);
  void finish() { running_ = false; }
  QProgressBar& bar() const { return *bar_; }
  QString countText() const;

 protected:
  void reject() override;

 private:
  QProgressBar* bar_ = nullptr;
  QLabel* count_ = nullptr;
  qint64 startedMs_ = 0;
  bool running_ = true;
};

class LookupFillDialog : public QDialog {
 public:
  explicit LookupFillDialog(QWidget* parent);

  QComboBox& family() const { return *family_; }
  QComboBox& column() const { return *column_; }
  QComboBox& field() const { return *field_; }
  QSpinBox& taxYear() const { return *taxYear_; }
  QPushButton& fillButton() const { return *fill_; }
  QLabel& result() const { return *result_; }

  // Runs the fill of the chosen column with its progress dialog; returns
  // when it is done.
  void fill();
  // Called with the progress dialog after each client (for tests).
  std::function<void(FillProgressDialog&, int done)> stepped;

 private:
  // The lookup columns of the chosen family, by the firm's settings.
  void listColumns();

  QComboBox* family_ = nullptr;
  QComboBox* column_ = nullptr;
  QComboBox* field_ = nullptr;
  QSpinBox* taxYear_ = nullptr;
  QPushButton* fill_ = nullptr;
  QLabel* result_ = nullptr;
};

// Opens the dialog over the host window (window-modal). Nothing happens
// without a hosted database.
void openLookupFillDialog(ClientWindow& window);

}  // namespace qb::desk
