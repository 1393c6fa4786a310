#include "services/shell/common_dialog.h"

namespace qb {

namespace {
thread_local FileDialogService fileDialogService;
}

bool CommonDialog::ShowOpen() {
  if (!fileDialogService) return false;
  auto service = fileDialogService;  // the service may install another one
  CommonDialog working = *this;
  if (!service(working)) return false;
  fileName_ = working.fileName_;
  return true;
}

void installFileDialogService(FileDialogService service) { fileDialogService = std::move(service); }

std::string multipleFileResult(const std::string& folder, const std::vector<std::string>& names) {
  std::string result = folder;
  for (const std::string& name : names) {
    result += '\0';
    result += name;
  }
  return result;
}

}  // namespace qb
