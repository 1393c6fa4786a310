#include "services/shell/folder_browser.h"

namespace qb {

namespace {
thread_local FolderBrowserService folderBrowserService;
}

std::optional<ShellFolder> BrowseForFolder(int64_t ownerWindow, const std::string& title,
                                           int32_t options, const std::string& rootFolder) {
  if (!folderBrowserService) return std::nullopt;
  auto service = folderBrowserService;  // the service may install another one
  return service(ownerWindow, title, options, rootFolder);
}

void installFolderBrowserService(FolderBrowserService service) {
  folderBrowserService = std::move(service);
}

}  // namespace qb
