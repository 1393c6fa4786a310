#pragma once
// docQuillboxReferencesClass: the service objects of the category and
// document library, handed on by the component as they arrive. The library's
// objects take their store and locale from here, and from the module state
// when this object holds none (a caller that only set up the module).

#include <memory>

namespace qb {

class ErrorObject;
class MessageObject;
class DatabaseReference;
class WorkingFolderReference;
class LocaleReference;

class docQuillboxReferencesClass {
 public:
  // Each keeps the object for the library, in place of any kept before.
  void setErrorClass(const std::shared_ptr<ErrorObject>& object) { errorClass_ = object; }
  void setMsgboxClass(const std::shared_ptr<MessageObject>& object) { msgboxClass_ = object; }
  void setDatabaseReference(const std::shared_ptr<DatabaseReference>& object) {
    databaseReference_ = object;
  }
  void setWorkingFolderReference(const std::shared_ptr<WorkingFolderReference>& object) {
    workingFolderReference_ = object;
  }
  void setLocaleReference(const std::shared_ptr<LocaleReference>& object) {
    localeReference_ = object;
  }

  // The objects kept; null for one never given.
  const std::shared_ptr<ErrorObject>& errorClass() const { return errorClass_; }
  const std::shared_ptr<MessageObject>& msgboxClass() const { return msgboxClass_; }
  const std::shared_ptr<DatabaseReference>& databaseReference() const { return databaseReference_; }
  const std::shared_ptr<WorkingFolderReference>& workingFolderReference() const {
    return workingFolderReference_;
  }
  const std::shared_ptr<LocaleReference>& localeReference() const { return localeReference_; }

 private:
  std::shared_ptr<ErrorObject> errorClass_;
  std::shared_ptr<MessageObject> msgboxClass_;
  std::shared_ptr<DatabaseReference> databaseReference_;
  std::shared_ptr<WorkingFolderReference> workingFolderReference_;
  std::shared_ptr<LocaleReference> localeReference_;
};

}  // namespace qb
