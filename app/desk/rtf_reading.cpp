#include "app/desk/rtf_reading.h"

#include <cctype>
#include <cstdlib>
#include <set>
#include <vector>

namespace qb::desk {

namespace {

// Code page 1252 from 0x80 to 0x9F; the rest of the page is Latin-1.
constexpr char16_t kCp1252High[32] = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

QChar fromCp1252(int byte) {
  return byte >= 0x80 && byte < 0xA0 ? QChar(kCp1252High[byte - 0x80]) : QChar(byte);
}

const std::set<std::string>& skippedDestinations() {
  static const std::set<std::string> names = {"fonttbl",
                                              "colortbl",
                                              "stylesheet",
                                              "info",
                                              "pict",
                                              "object",
                                              "listtable",
                                              "listoverridetable",
                                              "rsidtbl",
                                              "generator",
                                              "xmlnstbl",
                                              "themedata",
                                              "colorschememapping",
                                              "latentstyles",
                                              "datastore",
                                              "filetbl",
                                              "revtbl",
                                              "header",
                                              "footer",
                                              "fldinst"};
  return names;
}

struct Format {
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool skip = false;  // a group whose text is not shown
  int unicodeSkip = 1;
  bool operator==(const Format& other) const {
    return bold == other.bold && italic == other.italic && underline == other.underline;
  }
};

class Reader {
 public:
  explicit Reader(const std::string& rtf) : rtf_(rtf) {}

  QString html() {
    while (at_ < rtf_.size()) step();
    closeRun();
    return "<html><body style=\"white-space: pre-wrap\">" + out_ + "</body></html>";
  }

 private:
  void step() {
    const char c = rtf_[at_];
    if (c == '{') {
      ++at_;
      stack_.push_back(format_);
      groupStart_ = true;
      return;
    }
    if (c == '}') {
      ++at_;
      if (!stack_.empty()) {
        format_ = stack_.back();
        stack_.pop_back();
      }
      return;
    }
    if (c == '\\') {
      controlWord();
      return;
    }
    groupStart_ = false;
    ++at_;
    if (c == '\r' || c == '\n') return;
    if (pendingSkip_ > 0) {
      --pendingSkip_;
      return;
    }
    // Bytes beyond ASCII are taken as UTF-8, as a text editor writes them.
    size_t length = 1;
    const unsigned char lead = static_cast<unsigned char>(c);
    if (lead >= 0xC0) length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    const std::string bytes = rtf_.substr(at_ - 1, length);
    at_ += length - 1;
    text(QString::fromUtf8(bytes));
  }

  void controlWord() {
    const bool atGroupStart = groupStart_;
    groupStart_ = false;
    ++at_;  // the backslash
    if (at_ >= rtf_.size()) return;
    const char c = rtf_[at_];
    if (!std::isalpha(static_cast<unsigned char>(c))) {
      ++at_;
      if (c == '\'') {
        const int byte = std::strtol(rtf_.substr(at_, 2).c_str(), nullptr, 16);
        at_ += 2;
        if (pendingSkip_ > 0) {
          --pendingSkip_;
        } else {
          text(QString(fromCp1252(byte)));
        }
      } else if (c == '*') {
        format_.skip = true;
      } else if (c == '~') {
        text(QString(QChar(0x00A0)));
      } else if (c == '_') {
        text(QString(QChar(0x2011)));
      } else if (c == '\\' || c == '{' || c == '}') {
        text(QString(QChar(c)));
      }
      return;
    }
    std::string word;
    while (at_ < rtf_.size() && std::isalpha(static_cast<unsigned char>(rtf_[at_]))) {
      word += rtf_[at_++];
    }
    std::string digits;
    if (at_ < rtf_.size() && rtf_[at_] == '-') digits += rtf_[at_++];
    while (at_ < rtf_.size() && std::isdigit(static_cast<unsigned char>(rtf_[at_]))) {
      digits += rtf_[at_++];
    }
    if (at_ < rtf_.size() && rtf_[at_] == ' ') ++at_;
    const bool hasValue = !digits.empty() && digits != "-";
    const int value = hasValue ? std::atoi(digits.c_str()) : 1;
    if (atGroupStart && skippedDestinations().count(word)) {
      format_.skip = true;
    } else if (word == "par" || word == "line") {
      text("\n");
    } else if (word == "tab") {
      text("\t");
    } else if (word == "b") {
      format_.bold = value != 0;
    } else if (word == "i") {
      format_.italic = value != 0;
    } else if (word == "ul") {
      format_.underline = value != 0;
    } else if (word == "ulnone") {
      format_.underline = false;
    } else if (word == "plain") {
      format_.bold = format_.italic = format_.underline = false;
    } else if (word == "uc") {
      format_.unicodeSkip = value;
    } else if (word == "u") {
      text(QString(QChar(static_cast<char16_t>(static_cast<int16_t>(value)))));
      pendingSkip_ = format_.unicodeSkip;
    }
  }

  void text(const QString& piece) {
    if (format_.skip) return;
    if (!runOpen_ || !(run_ == format_)) {
      closeRun();
      run_ = format_;
      runOpen_ = true;
      QString style;
      if (run_.bold) style += "font-weight:bold;";
      if (run_.italic) style += "font-style:italic;";
      if (run_.underline) style += "text-decoration:underline;";
      out_ += "<span style=\"" + style + "\">";
    }
    out_ += piece.toHtmlEscaped();
  }

  void closeRun() {
    if (runOpen_) out_ += "</span>";
    runOpen_ = false;
  }

  const std::string& rtf_;
  size_t at_ = 0;
  Format format_;
  std::vector<Format> stack_;
  bool groupStart_ = false;
  int pendingSkip_ = 0;
  Format run_;
  bool runOpen_ = false;
  QString out_;
};

}  // namespace

QString rtfToHtml(const std::string& rtf) { return Reader(rtf).html(); }

}  // namespace qb::desk
