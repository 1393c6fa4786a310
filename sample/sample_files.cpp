#include "sample/sample_files.h"

#include <array>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace qb::sample {
namespace {

uint32_t crc32(const std::string& data) {
  static const std::array<uint32_t, 256> table = [] {
    std::array<uint32_t, 256> t{};
    for (uint32_t n = 0; n < 256; ++n) {
      uint32_t c = n;
      for (int k = 0; k < 8; ++k) c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
      t[n] = c;
    }
    return t;
  }();
  uint32_t crc = 0xFFFFFFFFu;
  for (unsigned char byte : data) crc = table[(crc ^ byte) & 0xFF] ^ (crc >> 8);
  return crc ^ 0xFFFFFFFFu;
}

void putLE(std::string& out, uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out += static_cast<char>((value >> (8 * i)) & 0xFF);
}

void putBE(std::string& out, uint32_t value) {
  for (int i = 3; i >= 0; --i) out += static_cast<char>((value >> (8 * i)) & 0xFF);
}

// A zip archive of stored (uncompressed) entries, in the given order, all
// dated 1 January 2025 so that the output is the same on every run.
std::string zipArchive(const std::vector<std::pair<std::string, std::string>>& entries) {
  constexpr uint32_t dosTime = 0;
  constexpr uint32_t dosDate = ((2025 - 1980) << 9) | (1 << 5) | 1;
  std::string out;
  std::string central;
  for (const auto& [name, data] : entries) {
    uint32_t offset = static_cast<uint32_t>(out.size());
    uint32_t crc = crc32(data);
    auto size = static_cast<uint32_t>(data.size());
    auto nameSize = static_cast<uint32_t>(name.size());
    // Flags, method (stored), date, checksum, sizes and name length: the
    // same in the local header and in the central directory.
    std::string common;
    putLE(common, 0, 2);
    putLE(common, 0, 2);
    putLE(common, dosTime, 2);
    putLE(common, dosDate, 2);
    putLE(common, crc, 4);
    putLE(common, size, 4);
    putLE(common, size, 4);
    putLE(common, nameSize, 2);

    putLE(out, 0x04034b50, 4);
    putLE(out, 20, 2);
    out += common;
    putLE(out, 0, 2);
    out += name;
    out += data;

    putLE(central, 0x02014b50, 4);
    putLE(central, 20, 2);
    putLE(central, 20, 2);
    central += common;
    putLE(central, 0, 2);
    putLE(central, 0, 2);
    putLE(central, 0, 2);
    putLE(central, 0, 2);
    putLE(central, 0, 4);
    putLE(central, offset, 4);
    central += name;
  }
  auto centralOffset = static_cast<uint32_t>(out.size());
  out += central;
  putLE(out, 0x06054b50, 4);
  putLE(out, 0, 2);
  putLE(out, 0, 2);
  putLE(out, static_cast<uint32_t>(entries.size()), 2);
  putLE(out, static_cast<uint32_t>(entries.size()), 2);
  putLE(out, static_cast<uint32_t>(central.size()), 4);
  putLE(out, centralOffset, 4);
  putLE(out, 0, 2);
  return out;
}

std::string xmlEscape(const std::string& text) {
  std::string out;
  for (char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  }
  return out;
}

const char* kXmlHead = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
const char* kPackageRels = "http://schemas.openxmlformats.org/package/2006/relationships";
const char* kOfficeRels = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

std::string contentTypes(const std::string& overrides) {
  return std::string(kXmlHead) +
         "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
         "<Default Extension=\"rels\" "
         "ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
         "<Default Extension=\"xml\" ContentType=\"application/xml\"/>" +
         overrides + "</Types>";
}

std::string relationships(const std::string& type, const std::string& target) {
  return std::string(kXmlHead) + "<Relationships xmlns=\"" + kPackageRels +
         "\"><Relationship Id=\"rId1\" Type=\"" + kOfficeRels + "/" + type + "\" Target=\"" +
         target + "\"/></Relationships>";
}

std::string docx(const std::string& title, const std::vector<std::string>& lines) {
  std::string body =
      "<w:p><w:r><w:rPr><w:b/></w:rPr><w:t>" + xmlEscape(title) + "</w:t></w:r></w:p>";
  for (const std::string& line : lines) {
    body += "<w:p><w:r><w:t xml:space=\"preserve\">" + xmlEscape(line) + "</w:t></w:r></w:p>";
  }
  std::string document = std::string(kXmlHead) +
                         "<w:document xmlns:w=\"http://schemas.openxmlformats.org/"
                         "wordprocessingml/2006/main\"><w:body>" +
                         body + "</w:body></w:document>";
  return zipArchive({
      {"[Content_Types].xml",
       contentTypes("<Override PartName=\"/word/document.xml\" ContentType=\"application/"
                    "vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml\"/>")},
      {"_rels/.rels", relationships("officeDocument", "word/document.xml")},
      {"word/document.xml", document},
  });
}

bool isNumber(const std::string& text) {
  if (text.empty()) return false;
  size_t used = 0;
  try {
    (void)std::stod(text, &used);
  } catch (const std::exception&) {
    return false;
  }
  return used == text.size();
}

std::vector<std::string> splitCells(const std::string& line) {
  std::vector<std::string> cells(1);
  for (char c : line) {
    if (c == ',') {
      cells.emplace_back();
    } else {
      cells.back() += c;
    }
  }
  return cells;
}

std::string xlsx(const std::vector<std::string>& lines) {
  std::string rows;
  for (size_t r = 0; r < lines.size(); ++r) {
    std::string row = std::to_string(r + 1);
    rows += "<row r=\"" + row + "\">";
    std::vector<std::string> cells = splitCells(lines[r]);
    for (size_t c = 0; c < cells.size() && c < 26; ++c) {
      std::string ref = std::string(1, static_cast<char>('A' + c)) + row;
      if (isNumber(cells[c])) {
        rows += "<c r=\"" + ref + "\"><v>" + cells[c] + "</v></c>";
      } else {
        rows +=
            "<c r=\"" + ref + "\" t=\"inlineStr\"><is><t>" + xmlEscape(cells[c]) + "</t></is></c>";
      }
    }
    rows += "</row>";
  }
  const std::string main = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
  return zipArchive({
      {"[Content_Types].xml",
       contentTypes("<Override PartName=\"/xl/workbook.xml\" ContentType=\"application/"
                    "vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml\"/>"
                    "<Override PartName=\"/xl/worksheets/sheet1.xml\" ContentType=\"application/"
                    "vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml\"/>")},
      {"_rels/.rels", relationships("officeDocument", "xl/workbook.xml")},
      {"xl/workbook.xml", std::string(kXmlHead) + "<workbook xmlns=\"" + main + "\" xmlns:r=\"" +
                              kOfficeRels +
                              "\"><sheets><sheet name=\"Sheet1\" sheetId=\"1\" "
                              "r:id=\"rId1\"/></sheets></workbook>"},
      {"xl/_rels/workbook.xml.rels", relationships("worksheet", "worksheets/sheet1.xml")},
      {"xl/worksheets/sheet1.xml", std::string(kXmlHead) + "<worksheet xmlns=\"" + main +
                                       "\"><sheetData>" + rows + "</sheetData></worksheet>"},
  });
}

std::string odt(const std::string& title, const std::vector<std::string>& lines) {
  std::string body = "<text:h text:outline-level=\"1\">" + xmlEscape(title) + "</text:h>";
  for (const std::string& line : lines) body += "<text:p>" + xmlEscape(line) + "</text:p>";
  const std::string mime = "application/vnd.oasis.opendocument.text";
  return zipArchive({
      {"mimetype", mime},
      {"META-INF/manifest.xml",
       std::string(kXmlHead) +
           "<manifest:manifest xmlns:manifest=\"urn:oasis:names:tc:opendocument:xmlns:"
           "manifest:1.0\" manifest:version=\"1.2\"><manifest:file-entry manifest:full-path=\"/\" "
           "manifest:version=\"1.2\" manifest:media-type=\"" +
           mime +
           "\"/><manifest:file-entry manifest:full-path=\"content.xml\" "
           "manifest:media-type=\"text/xml\"/></manifest:manifest>"},
      {"content.xml",
       std::string(kXmlHead) +
           "<office:document-content xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:"
           "office:1.0\" xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\" "
           "office:version=\"1.2\"><office:body><office:text>" +
           body + "</office:text></office:body></office:document-content>"},
  });
}

// Text for a PDF string in WinAnsi encoding: UTF-8 decoded, Latin-1 letters
// kept (as octal escapes), anything beyond shown as "?".
std::string pdfText(const std::string& text) {
  std::string out;
  for (size_t i = 0; i < text.size();) {
    auto byte = static_cast<unsigned char>(text[i]);
    uint32_t code = byte;
    size_t length = 1;
    if (byte >= 0xC0 && byte < 0xE0 && i + 1 < text.size()) {
      code = ((byte & 0x1F) << 6) | (static_cast<unsigned char>(text[i + 1]) & 0x3F);
      length = 2;
    } else if (byte >= 0xE0) {
      code = '?';
      length = byte >= 0xF0 ? 4 : 3;
    }
    i += length;
    if (code == '(' || code == ')' || code == '\\') {
      out += '\\';
      out += static_cast<char>(code);
    } else if (code >= 128 && code < 256) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\%03o", code);
      out += escape;
    } else if (code >= 32 && code < 128) {
      out += static_cast<char>(code);
    } else {
      out += '?';
    }
  }
  return out;
}

std::string pdf(const std::string& title, const std::vector<std::string>& lines) {
  std::string content = "BT /F1 16 Tf 72 720 Td (" + pdfText(title) + ") Tj /F1 11 Tf";
  for (const std::string& line : lines) content += " 0 -18 Td (" + pdfText(line) + ") Tj";
  content += " ET\n";
  std::vector<std::string> objects = {
      "<< /Type /Catalog /Pages 2 0 R >>",
      "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
      "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] /Contents 4 0 R "
      "/Resources << /Font << /F1 5 0 R >> >> >>",
      "<< /Length " + std::to_string(content.size()) + " >>\nstream\n" + content + "endstream",
      "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>",
  };
  std::string out = "%PDF-1.4\n";
  std::vector<size_t> offsets;
  for (size_t n = 0; n < objects.size(); ++n) {
    offsets.push_back(out.size());
    out += std::to_string(n + 1) + " 0 obj\n" + objects[n] + "\nendobj\n";
  }
  size_t xref = out.size();
  out += "xref\n0 " + std::to_string(objects.size() + 1) + "\n0000000000 65535 f \n";
  for (size_t offset : offsets) {
    char entry[24];
    std::snprintf(entry, sizeof entry, "%010zu 00000 n \n", offset);
    out += entry;
  }
  out += "trailer\n<< /Size " + std::to_string(objects.size() + 1) +
         " /Root 1 0 R >>\nstartxref\n" + std::to_string(xref) + "\n%%EOF\n";
  return out;
}

void pngChunk(std::string& out, const char* type, const std::string& data) {
  putBE(out, static_cast<uint32_t>(data.size()));
  std::string typed = std::string(type) + data;
  out += typed;
  putBE(out, crc32(typed));
}

// An 8 by 8 RGB picture in four coloured quarters, its pixels in one stored
// deflate block.
std::string png(uint32_t seed) {
  constexpr uint32_t size = 8;
  std::string raw;
  for (uint32_t y = 0; y < size; ++y) {
    raw += '\0';
    for (uint32_t x = 0; x < size; ++x) {
      uint32_t quarter = (y >= size / 2 ? 2 : 0) + (x >= size / 2 ? 1 : 0);
      uint32_t colour = (seed * 2654435761u) >> (quarter * 6);
      raw += static_cast<char>(0x40 + (colour & 0xBF));
      raw += static_cast<char>(0x40 + ((colour >> 8) & 0xBF));
      raw += static_cast<char>(0x40 + ((colour >> 16) & 0xBF));
    }
  }
  std::string zlib = "\x78\x01";
  zlib += '\x01';
  putLE(zlib, static_cast<uint32_t>(raw.size()), 2);
  putLE(zlib, static_cast<uint32_t>(~raw.size() & 0xFFFF), 2);
  zlib += raw;
  uint32_t a = 1;
  uint32_t b = 0;
  for (unsigned char byte : raw) {
    a = (a + byte) % 65521;
    b = (b + a) % 65521;
  }
  putBE(zlib, (b << 16) | a);

  std::string header;
  putBE(header, size);
  putBE(header, size);
  header += std::string("\x08\x02\x00\x00\x00", 5);
  std::string out = "\x89PNG\r\n\x1a\n";
  pngChunk(out, "IHDR", header);
  pngChunk(out, "IDAT", zlib);
  pngChunk(out, "IEND", "");
  return out;
}

std::string plainText(const std::string& title, const std::vector<std::string>& lines,
                      bool withTitle) {
  std::string out = withTitle ? title + "\n\n" : "";
  for (const std::string& line : lines) out += line + "\n";
  return out;
}

}  // namespace

void writeSampleFile(const std::filesystem::path& path, const std::string& title,
                     const std::vector<std::string>& lines) {
  std::string extension = path.extension().string();
  for (char& c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  std::string content;
  if (extension == ".pdf") {
    content = pdf(title, lines);
  } else if (extension == ".docx") {
    content = docx(title, lines);
  } else if (extension == ".xlsx") {
    content = xlsx(lines);
  } else if (extension == ".odt") {
    content = odt(title, lines);
  } else if (extension == ".png") {
    content = png(crc32(title));
  } else {
    content = plainText(title, lines, extension != ".csv");
  }
  std::filesystem::create_directories(path.parent_path());
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
  std::ofstream out(path, std::ios::binary);
  out.write(content.data(), static_cast<std::streamsize>(content.size()));
  if (!out) throw std::runtime_error("can't write " + path.string());
}

}  // namespace qb::sample
