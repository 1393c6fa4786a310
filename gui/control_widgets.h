#pragma once
// The widgets of a form's control models: one widget for each control,
// of the kind that renders it, placed inside the widget of its container,
// built for a whole container tree at once.

#include <QHash>

class QWidget;

namespace qb {
class Control;
}

namespace qb::gui {

using ControlWidgetMap = QHash<const Control*, QWidget*>;

// Creates the widget for control as a child of parent and, for a container,
// the widgets of its children in their order (later children on top).
// Records each widget in widgets when given. Controls that show nothing of
// their own (image lists) get no widget: the result is nullptr.
QWidget* createControlWidgets(Control& control, QWidget* parent,
                              ControlWidgetMap* widgets = nullptr);

}  // namespace qb::gui
