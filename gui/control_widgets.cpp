#include "gui/control_widgets.h"

#include "gui/category_tree_widget.h"
#include "gui/container_widget.h"
#include "gui/document_list_widget.h"
#include "gui/label_widget.h"
#include "gui/press_button_widget.h"
#include "gui/progress_bar_widget.h"
#include "gui/shade_line_widget.h"
#include "gui/splitter_bar_widgets.h"
#include "services/controls/image_list.h"
#include "splitter/splitter.h"

namespace qb::gui {

namespace {

// The widget of one control, without its children.
QWidget* createWidget(Control& control, QWidget* parent) {
  if (auto* splitter = dynamic_cast<Splitter*>(control.Container())) {
    if (&control == &splitter->picSplitter)
      return new SplitterBarWidget(splitter->picSplitter, parent);
    if (&control == &splitter->picMover) return new GhostBarWidget(splitter->picMover, parent);
  }
  if (dynamic_cast<ImageList*>(&control)) return nullptr;
  if (auto* tree = dynamic_cast<TreeView*>(&control)) return new CategoryTreeWidget(*tree, parent);
  if (auto* list = dynamic_cast<ListView*>(&control)) return new DocumentListWidget(*list, parent);
  if (auto* strip = dynamic_cast<ShadeLine*>(&control)) return new ShadeLineWidget(*strip, parent);
  if (auto* label = dynamic_cast<Label*>(&control)) return new LabelWidget(*label, parent);
  if (auto* button = dynamic_cast<CommandButton*>(&control))
    return new PressButtonWidget(*button, parent);
  if (auto* bar = dynamic_cast<ProgressBar*>(&control)) return new ProgressBarWidget(*bar, parent);
  if (auto* container = dynamic_cast<ContainerControl*>(&control))
    return new ContainerWidget(*container, parent);
  return nullptr;
}

}  // namespace

QWidget* createControlWidgets(Control& control, QWidget* parent, ControlWidgetMap* widgets) {
  QWidget* widget = createWidget(control, parent);
  if (widget == nullptr) return nullptr;
  if (widgets) widgets->insert(&control, widget);
  if (auto* container = dynamic_cast<ContainerControl*>(&control)) {
    for (Control* child : container->children()) createControlWidgets(*child, widget, widgets);
  }
  return widget;
}

}  // namespace qb::gui
