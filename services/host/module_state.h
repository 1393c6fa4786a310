#pragma once
// Module state: the five service objects the host hands in and the helper
// objects of the library, shared by every instance of the component, its
// dialogs and classes on one thread. The first assignment of a service object
// wins (the component's property setters keep that rule); tests reset the
// state between cases with resetModuleState(). The host may also set the
// clock that gives today's date (clock.h); without one the machine's answers.

#include <memory>

namespace qb {

class ErrorObject;
class MessageObject;
class DatabaseReference;
class WorkingFolderReference;
class LocaleReference;
class docQuillboxReferencesClass;
class fileUtilitiesClass;
class generalUtilitiesClass;
class dateUtilitiesClass;
class Clock;

struct ModuleState {
  std::shared_ptr<ErrorObject> errorClass;
  std::shared_ptr<MessageObject> msgboxClass;
  std::shared_ptr<DatabaseReference> databaseReference;
  std::shared_ptr<WorkingFolderReference> workingFolderReference;
  std::shared_ptr<LocaleReference> localeReference;

  std::shared_ptr<docQuillboxReferencesClass> references;
  std::shared_ptr<fileUtilitiesClass> fileUtilities;
  std::shared_ptr<generalUtilitiesClass> generalUtilities;
  std::shared_ptr<dateUtilitiesClass> dateUtilities;

  std::shared_ptr<Clock> clock;  // null: the machine's clock
};

// This thread's module state.
ModuleState& moduleState();
// Drops every object of this thread's module state.
void resetModuleState();

}  // namespace qb
