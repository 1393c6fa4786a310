#pragma once
// The icons of document links: a name of the desktop's icon theme chosen by
// the file's extension. Every link gets one, also when its file is gone.

#include <string>

namespace qb::quillboxLibrary {

// Icon of a file type: the extension with or without its dot, any case
// ("pdf", ".PDF"). An extension the table does not know gives
// kGenericFileIcon.
std::string iconNameForExtension(const std::string& extension);

constexpr const char* kGenericFileIcon = "text-x-generic";
constexpr const char* kFolderIcon = "folder";
// The emblem over the icon of a link whose file or folder can't be reached:
// the icon keeps the file's type, the emblem tells that the link is broken.
constexpr const char* kBrokenLinkEmblem = "emblem-unreadable";

// Pixel sizes of the small and the large icon.
constexpr int kSmallIconSize = 16;
constexpr int kLargeIconSize = 32;

}  // namespace qb::quillboxLibrary
