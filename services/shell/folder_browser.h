#pragma once
// BrowseForFolder: the desktop's dialog for choosing a folder, as the shell
// object offers it. The GUI installs the desktop's folder dialog (folders
// only); a test installs a service that acts as the user; without a service
// the dialog is "cancelled" at once.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace qb {

// Options of the folder dialog: file-system folders only, and an edit box in
// which a path can be typed.
constexpr int32_t BIF_RETURNONLYFSDIRS = 0x1;
constexpr int32_t BIF_EDITBOX = 0x10;

// The folder the user chose. Path is its place in the file system; "" for a
// place that has none (a virtual folder of the desktop).
struct ShellFolder {
  std::string Path;
};

// Shows the dialog with its title and options over the owner window (0 for
// none), rooted at rootFolder ("" for the desktop: every folder can be
// chosen). Returns the folder chosen, or nothing when the user cancelled.
std::optional<ShellFolder> BrowseForFolder(int64_t ownerWindow, const std::string& title,
                                           int32_t options, const std::string& rootFolder = "");

using FolderBrowserService = std::function<std::optional<ShellFolder>(
    int64_t ownerWindow, const std::string& title, int32_t options, const std::string& rootFolder)>;
// Installs this thread's service; an empty one goes back to none.
void installFolderBrowserService(FolderBrowserService service);

}  // namespace qb
