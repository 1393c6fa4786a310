#pragma once
// WorkProgress: while long work of a window runs (a check of the firm's
// links, a relink), its progress bar shows how far it is and the window
// shows the busy cursor. The window repaints between steps, at most once a
// slice; the user's input waits for the end of the work.

#include <QElapsedTimer>
#include <QString>

#include "links/link_record.h"

class QProgressBar;
class QWidget;

namespace qb::desk {

class WorkProgress {
 public:
  // format: the bar's text ("Checking links: %v of %m").
  WorkProgress(QWidget& window, QProgressBar& bar, const QString& format);
  // Hides the bar and gives the cursor back.
  ~WorkProgress();
  WorkProgress(const WorkProgress&) = delete;
  WorkProgress& operator=(const WorkProgress&) = delete;

  // The callback for the work: done out of total (total 0: not known ahead,
  // the bar runs without an end).
  links::Progress callback();

 private:
  void step(size_t done, size_t total);

  QWidget& window_;
  QProgressBar& bar_;
  QElapsedTimer sincePaint_;
};

}  // namespace qb::desk
