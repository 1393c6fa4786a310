#include "services/controls/data_object.h"

#include "services/controls/control_failures.h"

namespace qb {

const std::string& DataObjectFiles::item(int32_t index) const {
  if (index < 1 || index > Count()) control_failures::subscriptOutOfRange();
  return paths_[index - 1];
}

DataObject DataObject::withFiles(const std::vector<std::string>& paths) {
  DataObject data;
  data.SetData(CF_HDROP);
  for (const auto& path : paths) data.files_.Add(path);
  return data;
}

void DataObject::Clear() {
  formats_.clear();
  files_.Clear();
}

}  // namespace qb
