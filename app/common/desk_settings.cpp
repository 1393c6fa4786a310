#include "app/common/desk_settings.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace qb::hosts {

std::string userConfigFolder() {
  const char* config = std::getenv("XDG_CONFIG_HOME");
  if (config != nullptr && config[0] == '/') return config;
  const char* home = std::getenv("HOME");
  return home != nullptr && home[0] != '\0' ? std::string(home) + "/.config" : std::string();
}

std::string iniValue(const std::string& written) {
  const size_t first = written.find_first_not_of(" \t");
  if (first == std::string::npos) return "";
  const size_t last = written.find_last_not_of(" \t\r");
  std::string text = written.substr(first, last - first + 1);
  if (text.size() >= 2 && text.front() == '"' && text.back() == '"') {
    std::string value;
    for (size_t i = 1; i + 1 < text.size(); ++i) {
      if (text[i] == '\\' && i + 2 < text.size()) {
        const char escaped = text[++i];
        value += escaped == 'n' ? '\n' : escaped == 't' ? '\t' : escaped;
      } else {
        value += text[i];
      }
    }
    return value;
  }
  if (text.rfind("@@", 0) == 0) text.erase(0, 1);
  return text;
}

std::string lastDeskDatabase(const std::string& configFolder) {
  if (configFolder.empty()) return "";
  // The file and the key the desktop program writes (gui/user_settings.h,
  // app/desk/window_state.cpp).
  std::ifstream file(configFolder + "/quillbox/quillbox-desk.conf");
  std::string line;
  bool inSection = false;
  while (std::getline(file, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.rfind('[', 0) == 0) {
      inSection = line == "[database]";
    } else if (inSection && line.rfind("last=", 0) == 0) {
      const std::string path = iniValue(line.substr(5));
      return std::filesystem::is_regular_file(path) ? path : "";
    }
  }
  return "";
}

}  // namespace qb::hosts
