#pragma once
// Small but real files for the sample firm's document links: each opens in
// the application its type belongs to.

#include <filesystem>
#include <string>
#include <vector>

namespace qb::sample {

// Writes a file whose content suits its extension: .pdf (one page of text),
// .docx and .odt (one paragraph per line), .xlsx (one row per line, cells
// split at commas, numbers as numbers), .png (a tiny picture), .csv and .txt
// and anything else (the lines as text). Creates the folders on the way and
// replaces an existing file, also a read-only one. Throws
// std::filesystem::filesystem_error or std::runtime_error on failure.
void writeSampleFile(const std::filesystem::path& path, const std::string& title,
                     const std::vector<std::string>& lines);

}  // namespace qb::sample
