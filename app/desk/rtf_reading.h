#pragma once
// A merged RTF document shown in a preview: its text with paragraphs, tabs
// and its bold, italic and underlined runs, as HTML a Qt text view shows.
// Groups that hold no text (the font and colour tables, style sheets, the
// document's information, pictures, "\*" destinations) are left out; "\'hh"
// is a character of code page 1252, "\uN" a Unicode character with the
// characters that stand in for it skipped. Not a full RTF reader: fonts,
// sizes, colours and layout are not shown.

#include <QString>
#include <string>

namespace qb::desk {

QString rtfToHtml(const std::string& rtf);

}  // namespace qb::desk
