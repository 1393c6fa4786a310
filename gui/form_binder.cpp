#include "gui/form_binder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "gui/document_list_widget.h"
#include "gui/shade_line_widget.h"
#include "gui/sync_guard.h"
#include "gui/theme_icons.h"
#include "services/controls/check_box.h"
#include "services/controls/combo_box.h"
#include "services/controls/command_button.h"
#include "services/controls/frame.h"
#include "services/controls/image_box.h"
#include "services/controls/label.h"
#include "services/controls/option_button.h"
#include "services/controls/shade_line.h"
#include "services/controls/tab_control.h"
#include "services/controls/text_box.h"
#include "services/runtime/strings.h"

namespace qb::gui {

namespace {

QString qt(const std::string& text) { return QString::fromStdString(text); }

// Character positions of the models (code points) as QString positions
// (UTF-16 units).
int utf16Position(const QString& text, int32_t codePoints) {
  int position = 0;
  for (int32_t i = 0; i < codePoints && position < text.size(); ++i)
    position += text[position].isHighSurrogate() ? 2 : 1;
  return position;
}

}  // namespace

FormBinder::~FormBinder() = default;

ControlBinding& FormBinder::bind(Control& model, QWidget& widget,
                                 ControlBinding::ChangeHandler onChange) {
  bindings_.push_back(std::make_unique<ControlBinding>(model, widget, std::move(onChange)));
  ControlBinding& binding = *bindings_.back();
  binding.placeByLayout();
  return binding;
}

QLabel* FormBinder::label(Label& model, QWidget* parent) {
  auto* widget = new QLabel(parent);
  widget->setTextFormat(Qt::PlainText);
  widget->setWordWrap(true);
  widget->setTextInteractionFlags(Qt::TextSelectableByMouse);
  bind(model, *widget, [widget, &model](ControlChange change) {
    if (change == ControlChange::Text) widget->setText(qt(model.Caption()));
  }).applyAll();
  return widget;
}

QLineEdit* FormBinder::textBox(TextBox& model, QWidget* parent) {
  auto* widget = new QLineEdit(parent);
  ControlBinding& binding = bind(model, *widget, [this, widget, &model](ControlChange change) {
    quietly(syncing_, [&] {
      switch (change) {
        case ControlChange::Text:
          if (widget->text() != qt(model.Text())) {
            widget->setText(qt(model.Text()));
            // A long path reads from its start; the whole text is the tip.
            if (!widget->hasFocus()) widget->setCursorPosition(0);
            if (model.ToolTipText().empty()) widget->setToolTip(widget->text());
          }
          break;
        case ControlChange::Selection: {
          // The selection shows while the field has the focus; otherwise the
          // field keeps showing the start of its text.
          if (!widget->hasFocus()) break;
          const QString text = widget->text();
          const int start = utf16Position(text, model.SelStart());
          const int end = utf16Position(text, model.SelStart() + model.SelLength());
          widget->setSelection(start, end - start);
          break;
        }
        case ControlChange::Appearance: {
          // A field that can't be typed in is drawn on the window's colour.
          widget->setReadOnly(model.Locked());
          QPalette colours =
              widget->parentWidget() ? widget->parentWidget()->palette() : widget->palette();
          if (model.Locked()) colours.setColor(QPalette::Base, colours.color(QPalette::Window));
          widget->setPalette(colours);
          break;
        }
        default:
          break;
      }
    });
  });
  QObject::connect(widget, &QLineEdit::textEdited, widget, [this, &model](const QString& text) {
    if (!syncing_) model.setText(text.toStdString());
  });
  binding.forwardInputFrom(*widget, false);
  binding.applyAll();
  return widget;
}

QPlainTextEdit* FormBinder::textArea(TextBox& model, QWidget* parent) {
  auto* widget = new QPlainTextEdit(parent);
  widget->setTabChangesFocus(true);
  auto shown = [](const std::string& text) { return qt(text).replace("\r\n", "\n"); };
  ControlBinding& binding =
      bind(model, *widget, [this, widget, &model, shown](ControlChange change) {
        quietly(syncing_, [&] {
          if (change == ControlChange::Text && widget->toPlainText() != shown(model.Text()))
            widget->setPlainText(shown(model.Text()));
          if (change == ControlChange::Appearance) widget->setReadOnly(model.Locked());
        });
      });
  QObject::connect(widget, &QPlainTextEdit::textChanged, widget, [this, widget, &model] {
    if (!syncing_) model.setText(widget->toPlainText().replace("\n", "\r\n").toStdString());
  });
  binding.forwardInputFrom(*widget, false);
  binding.applyAll();
  return widget;
}

QPushButton* FormBinder::button(CommandButton& model, QWidget* parent, const char* icon) {
  auto* widget = new QPushButton(parent);
  if (*icon != '\0') widget->setIcon(themeIcon(icon));
  widget->setAutoDefault(false);
  bind(model, *widget, [widget, &model](ControlChange change) {
    if (change == ControlChange::Text) widget->setText(qt(model.Caption()));
  }).applyAll();
  QObject::connect(widget, &QPushButton::clicked, widget, [&model] { model.click(); });
  return widget;
}

QCheckBox* FormBinder::checkBox(CheckBox& model, QWidget* parent) {
  auto* widget = new QCheckBox(parent);
  bind(model, *widget, [this, widget, &model](ControlChange change) {
    if (change == ControlChange::Text) widget->setText(qt(model.Caption()));
    if (change == ControlChange::Selection) {
      quietly(syncing_, [&] {
        widget->setCheckState(model.Value() == 1   ? Qt::Checked
                              : model.Value() == 2 ? Qt::PartiallyChecked
                                                   : Qt::Unchecked);
      });
    }
  }).applyAll();
  QObject::connect(widget, &QCheckBox::toggled, widget, [this, &model](bool checked) {
    if (!syncing_) model.setValue(checked ? 1 : 0);
  });
  return widget;
}

QRadioButton* FormBinder::option(OptionButton& model, QWidget* parent) {
  auto* widget = new QRadioButton(parent);
  bind(model, *widget, [this, widget, &model](ControlChange change) {
    if (change == ControlChange::Text) widget->setText(qt(model.Caption()));
    if (change == ControlChange::Selection)
      quietly(syncing_, [&] { widget->setChecked(model.Value()); });
  }).applyAll();
  QObject::connect(widget, &QRadioButton::toggled, widget, [this, &model](bool checked) {
    if (!syncing_ && checked) model.setValue(true);
  });
  return widget;
}

QComboBox* FormBinder::comboBox(ComboBox& model, QWidget* parent) {
  auto* widget = new QComboBox(parent);
  widget->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  ControlBinding& binding = bind(model, *widget, [this, widget, &model](ControlChange change) {
    quietly(syncing_, [&] {
      if (change == ControlChange::Items) {
        widget->clear();
        for (int32_t i = 0; i < model.ListCount(); ++i) widget->addItem(qt(model.List(i)));
      }
      if (change == ControlChange::Items || change == ControlChange::Selection)
        widget->setCurrentIndex(model.ListIndex());
    });
  });
  QObject::connect(widget, qOverload<int>(&QComboBox::activated), widget,
                   [this, &model](int index) {
                     if (!syncing_ && index < model.ListCount()) model.setListIndex(index);
                   });
  binding.forwardInputFrom(*widget, false);
  binding.applyAll();
  return widget;
}

QGroupBox* FormBinder::frame(Frame& model, QWidget* parent) {
  auto* widget = new QGroupBox(parent);
  bind(model, *widget, [widget, &model](ControlChange change) {
    if (change == ControlChange::Text) widget->setTitle(qt(model.Caption()));
  }).applyAll();
  return widget;
}

QTabWidget* FormBinder::tabs(TabControl& model, QWidget* parent) {
  auto* widget = new QTabWidget(parent);
  for (int16_t i = 0; i < model.Tabs(); ++i) widget->addTab(new QWidget(widget), QString());
  bind(model, *widget, [this, widget, &model](ControlChange change) {
    quietly(syncing_, [&] {
      for (int16_t i = 0; i < model.Tabs() && i < widget->count(); ++i) {
        if (change == ControlChange::Text) widget->setTabText(i, qt(model.TabCaption(i)));
        if (change == ControlChange::Visibility) widget->setTabVisible(i, model.TabVisible(i));
      }
      if (change == ControlChange::Selection || change == ControlChange::Visibility)
        widget->setCurrentIndex(model.Tab());
    });
  }).applyAll();
  QObject::connect(widget, &QTabWidget::currentChanged, widget, [this, &model](int index) {
    if (!syncing_ && index >= 0) model.setTab(static_cast<int16_t>(index));
  });
  return widget;
}

QLabel* FormBinder::image(ImageBox& model, QWidget* parent, int size) {
  auto* widget = new QLabel(parent);
  widget->setFixedSize(size, size);
  bind(model, *widget, [widget, &model, size](ControlChange change) {
    if (change == ControlChange::Images)
      widget->setPixmap(iconFor(model.Picture()).pixmap(size, size));
  }).applyAll();
  return widget;
}

DocumentListWidget* FormBinder::list(ListView& model, QWidget* parent) {
  auto* widget = new DocumentListWidget(model, parent);
  widget->binding().placeByLayout();
  return widget;
}

ShadeLineWidget* FormBinder::header(ShadeLine& model, QWidget* parent) {
  auto* widget = new ShadeLineWidget(model, parent);
  widget->binding().placeByLayout();
  return widget;
}

}  // namespace qb::gui
