#pragma once
// FormBinder: makes the Qt widgets of a dialog's controls and keeps each in
// step with its control model, both ways, as the component's widgets do
// (control_binding.h): the model's texts, values, choices, visibility and
// enabled state reach the widget; the user's typing, clicks, choices, focus
// and keys reach the model as its events. The widgets stand in the dialog's
// layouts, so the models' twips are not applied. The binder must be
// destroyed before the models.

#include <QString>
#include <memory>
#include <vector>

#include "gui/control_binding.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QWidget;

namespace qb {
class CheckBox;
class ComboBox;
class CommandButton;
class Frame;
class ImageBox;
class Label;
class ListView;
class OptionButton;
class ShadeLine;
class TabControl;
class TextBox;
}  // namespace qb

namespace qb::gui {

class DocumentListWidget;
class ShadeLineWidget;

class FormBinder {
 public:
  FormBinder() = default;
  ~FormBinder();
  FormBinder(const FormBinder&) = delete;
  FormBinder& operator=(const FormBinder&) = delete;

  // Each makes the widget as a child of parent (to be put in a layout).
  QLabel* label(Label& model, QWidget* parent);
  QLineEdit* textBox(TextBox& model, QWidget* parent);
  // A box of several lines (MultiLine); its lines break as CR LF in the model.
  QPlainTextEdit* textArea(TextBox& model, QWidget* parent);
  // icon: a theme icon name shown beside the caption ("" for none).
  QPushButton* button(CommandButton& model, QWidget* parent, const char* icon = "");
  QCheckBox* checkBox(CheckBox& model, QWidget* parent);
  QRadioButton* option(OptionButton& model, QWidget* parent);
  QComboBox* comboBox(ComboBox& model, QWidget* parent);
  QGroupBox* frame(Frame& model, QWidget* parent);
  // The tab widget with one empty page per tab; the dialog fills the pages.
  QTabWidget* tabs(TabControl& model, QWidget* parent);
  // The picture, at size pixels.
  QLabel* image(ImageBox& model, QWidget* parent, int size);
  DocumentListWidget* list(ListView& model, QWidget* parent);
  ShadeLineWidget* header(ShadeLine& model, QWidget* parent);

 private:
  ControlBinding& bind(Control& model, QWidget& widget, ControlBinding::ChangeHandler onChange);

  std::vector<std::unique_ptr<ControlBinding>> bindings_;
  bool syncing_ = false;
};

}  // namespace qb::gui
