#include "tests/gui/dialog_helpers.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <cstdlib>

#include "tests/gui/desk_fixture.h"

namespace qb::test {

void saveDialog(QWidget& dialog, const std::string& name, const TempFolder& fallback) {
  const char* dir = std::getenv("QB_SCREENSHOT_DIR");
  const QString path = QString::fromStdString((dir ? std::string(dir) : fallback.path().string()) +
                                              "/" + name + ".png");
  QDir().mkpath(QFileInfo(path).absolutePath());
  settle();
  EXPECT_TRUE(dialog.grab().save(path, "PNG")) << path.toStdString();
}

void expectNoTextCut(QWidget& dialog) {
  for (QWidget* widget : dialog.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&dialog)) continue;
    const std::string name = widget->objectName().toStdString();
    if (auto* label = qobject_cast<QLabel*>(widget); label && !label->text().isEmpty()) {
      if (label->wordWrap()) {
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << name;
      } else {
        EXPECT_GE(label->width(), label->minimumSizeHint().width()) << name;
      }
    } else if (qobject_cast<QPushButton*>(widget) || qobject_cast<QCheckBox*>(widget) ||
               qobject_cast<QRadioButton*>(widget)) {
      EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << name;
    }
  }
}

void type(QWidget& target, const QString& text) {
  for (QChar c : text) {
    const int key = c == '\r' ? static_cast<int>(Qt::Key_Return) : c.toUpper().unicode();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(c));
    QApplication::sendEvent(&target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, QString(c));
    QApplication::sendEvent(&target, &release);
  }
  settle();
}

void press(QWidget& target, int key) {
  QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(&target, &down);
  QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
  QApplication::sendEvent(&target, &up);
  settle();
}

}  // namespace qb::test
