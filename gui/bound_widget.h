#pragma once
// BoundWidget<QtWidget, Model>: a Qt widget that renders one control model,
// with the binding that keeps it in step (control_binding.h). A widget kind
// overrides applyChange for what its kind shows beyond what every control
// has, and calls binding().applyAll() at the end of its constructor.

#include <QWidget>

#include "gui/control_binding.h"

namespace qb::gui {

template <class QtWidget, class Model>
class BoundWidget : public QtWidget {
 public:
  Model& control() const { return control_; }
  ControlBinding& binding() { return binding_; }

 protected:
  BoundWidget(Model& control, QWidget* parent)
      : QtWidget(parent),
        control_(control),
        binding_(control, *this, [this](ControlChange change) { applyChange(change); }) {}

  // Called after the binding applied its part of a change.
  virtual void applyChange(ControlChange) {}

 private:
  Model& control_;
  ControlBinding binding_;
};

}  // namespace qb::gui
