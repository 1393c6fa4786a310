#include "services/quillbox/file_icons.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace qb::quillboxLibrary {

namespace {

struct IconOfType {
  std::string_view extension;  // lower case, without the dot
  std::string_view iconName;
};

// File types an accounting firm links, by extension, with the icon theme
// names the desktop knows them by.
constexpr IconOfType kIconsByExtension[] = {
    {"pdf", "application-pdf"},
    {"doc", "x-office-document"},
    {"docx", "x-office-document"},
    {"dot", "x-office-document"},
    {"dotx", "x-office-document"},
    {"odt", "x-office-document"},
    {"ott", "x-office-document"},
    {"rtf", "x-office-document"},
    {"wpd", "x-office-document"},
    {"omd", "x-office-document"},
    {"xls", "x-office-spreadsheet"},
    {"xlsx", "x-office-spreadsheet"},
    {"xlsm", "x-office-spreadsheet"},
    {"ods", "x-office-spreadsheet"},
    {"csv", "x-office-spreadsheet"},
    {"qif", "x-office-spreadsheet"},
    {"ppt", "x-office-presentation"},
    {"pptx", "x-office-presentation"},
    {"odp", "x-office-presentation"},
    {"png", "image-x-generic"},
    {"jpg", "image-x-generic"},
    {"jpeg", "image-x-generic"},
    {"gif", "image-x-generic"},
    {"bmp", "image-x-generic"},
    {"tif", "image-x-generic"},
    {"tiff", "image-x-generic"},
    {"webp", "image-x-generic"},
    {"heic", "image-x-generic"},
    {"txt", "text-x-generic"},
    {"log", "text-x-generic"},
    {"md", "text-x-generic"},
    {"htm", "text-html"},
    {"html", "text-html"},
    {"xml", "text-xml"},
    {"eml", "message-x-generic"},
    {"msg", "message-x-generic"},
    {"zip", "package-x-generic"},
    {"7z", "package-x-generic"},
    {"rar", "package-x-generic"},
    {"gz", "package-x-generic"},
    {"tar", "package-x-generic"},
    {"mp3", "audio-x-generic"},
    {"wav", "audio-x-generic"},
    {"m4a", "audio-x-generic"},
    {"mp4", "video-x-generic"},
    {"mov", "video-x-generic"},
    {"avi", "video-x-generic"},
    {"exe", "application-x-executable"},
};

}  // namespace

std::string iconNameForExtension(const std::string& extension) {
  std::string key = extension.starts_with('.') ? extension.substr(1) : extension;
  std::transform(key.begin(), key.end(), key.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  for (const auto& row : kIconsByExtension)
    if (row.extension == key) return std::string(row.iconName);
  return kGenericFileIcon;
}

}  // namespace qb::quillboxLibrary
