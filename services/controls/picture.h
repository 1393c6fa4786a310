#pragma once
// Picture: an image a control shows, as a small value. Either an icon of the
// desktop's icon theme by name ("application-pdf", "text-x-generic") at a size
// in pixels, or an image file by path. A default-constructed Picture is no
// picture at all (the platform's Nothing). An icon may carry an emblem, a
// second theme icon drawn small over its corner ("emblem-unreadable" on the
// icon of a link whose file can't be reached).

#include <cstdint>
#include <string>

namespace qb {

struct Picture {
  std::string iconName;    // icon theme name, empty when the picture is a file
  std::string filePath;    // image file, empty when the picture is a theme icon
  int32_t size = 0;        // edge in pixels (16 small, 32 large); 0 = natural size
  std::string emblemName;  // icon theme name of the emblem, empty for none

  static Picture themeIcon(std::string name, int32_t pixels) {
    Picture p;
    p.iconName = std::move(name);
    p.size = pixels;
    return p;
  }
  static Picture file(std::string path, int32_t pixels = 0) {
    Picture p;
    p.filePath = std::move(path);
    p.size = pixels;
    return p;
  }

  // The same picture with an emblem over its corner.
  Picture withEmblem(std::string emblem) const {
    Picture p = *this;
    p.emblemName = std::move(emblem);
    return p;
  }

  // True when there is no picture (neither an icon name nor a file).
  bool isEmpty() const { return iconName.empty() && filePath.empty(); }
  bool operator==(const Picture&) const = default;
};

}  // namespace qb
