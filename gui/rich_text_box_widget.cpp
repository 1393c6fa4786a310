#include "gui/rich_text_box_widget.h"

#include <QTextBlock>

#include "gui/sync_guard.h"

namespace qb::gui {

namespace {

// A position in UTF-16 units of text as a count of characters, and back.
int32_t toCharacters(const QString& text, int units) {
  return static_cast<int32_t>(text.left(units).toUcs4().size());
}

int toUnits(const QString& text, int32_t characters) {
  int units = 0;
  for (int32_t i = 0; i < characters && units < text.size(); ++i) {
    units += text.at(units).isHighSurrogate() && units + 1 < text.size() ? 2 : 1;
  }
  return units;
}

}  // namespace

RichTextBoxWidget::RichTextBoxWidget(RichTextBox& control, QWidget* parent)
    : BoundWidget(control, parent) {
  connect(this, &QPlainTextEdit::textChanged, this, [this] { userEdited(); });
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { userMovedCaret(); });
  connect(this, &QPlainTextEdit::selectionChanged, this, [this] { userMovedCaret(); });
  binding().applyAll();
}

void RichTextBoxWidget::applyChange(ControlChange change) {
  if (change == ControlChange::Text) applyText();
  if (change == ControlChange::Text || change == ControlChange::Selection) applyCaret();
  if (change == ControlChange::Appearance) setReadOnly(control().Locked());
}

void RichTextBoxWidget::applyText() {
  if (syncing_) return;  // the user's own edit, already shown
  const QString text = QString::fromStdString(control().Text());
  if (toPlainText() == text) return;
  quietly(syncing_, [&] { setPlainText(text); });
}

void RichTextBoxWidget::applyCaret() {
  if (syncing_) return;
  quietly(syncing_, [&] {
    const QString text = toPlainText();
    QTextCursor cursor = textCursor();
    const int start = toUnits(text, control().SelStart());
    cursor.setPosition(start);
    cursor.setPosition(toUnits(text, control().SelStart() + control().SelLength()),
                       QTextCursor::KeepAnchor);
    setTextCursor(cursor);
  });
}

void RichTextBoxWidget::userEdited() {
  if (syncing_) return;
  quietly(syncing_, [&] { control().setText(toPlainText().toStdString()); });
  userMovedCaret();
}

void RichTextBoxWidget::userMovedCaret() {
  if (syncing_) return;
  quietly(syncing_, [&] {
    const QString text = toPlainText();
    const QTextCursor cursor = textCursor();
    control().setSelStart(toCharacters(text, cursor.selectionStart()));
    control().setSelLength(toCharacters(text, cursor.selectionEnd()) -
                           toCharacters(text, cursor.selectionStart()));
  });
}

}  // namespace qb::gui
