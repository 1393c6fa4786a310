#pragma once
// Changes a widget makes to follow its model fire Qt signals too; a widget
// runs them quietly (with its syncing flag set) so that its signal handlers
// don't take them for the user's and send them back to the model.

namespace qb::gui {

template <class Change>
void quietly(bool& syncing, Change&& change) {
  const bool was = syncing;
  syncing = true;
  change();
  syncing = was;
}

}  // namespace qb::gui
