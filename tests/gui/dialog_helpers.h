#pragma once
// What the GUI tests do in dialogs: save a dialog's picture, check that no
// caption is cut, find a widget by the name of the control it shows, type
// and press keys as the keyboard does.

#include <gtest/gtest.h>

#include <QString>
#include <QWidget>
#include <stdexcept>
#include <string>

#include "tests/support/temp_folder.h"

namespace qb::test {

// Saves a dialog's picture beside the window's screenshots ($QB_SCREENSHOT_DIR,
// else the fallback folder).
void saveDialog(QWidget& dialog, const std::string& name, const TempFolder& fallback);

// Every caption of the dialog that shows is shown whole: no label, button,
// check or option box is narrower (or a wrapped label lower) than its text.
void expectNoTextCut(QWidget& dialog);

// The widget of that object name (a control's name, "txtField(0)"); fails
// the test when there is none.
template <class W>
W& widgetNamed(QWidget& dialog, const char* name) {
  W* widget = dialog.findChild<W*>(name);
  if (widget == nullptr) {
    ADD_FAILURE() << "no widget " << name;
    throw std::runtime_error(name);
  }
  return *widget;
}

// Types text into a widget, key by key, as the keyboard does.
void type(QWidget& target, const QString& text);
// A press and a release of one key.
void press(QWidget& target, int key);

}  // namespace qb::test
