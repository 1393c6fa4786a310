#pragma once
// xmlReaderClass: parses an XML text and selects nodes of it by path.

#include <memory>
#include <string>

#include "services/util/xml_node_class.h"

namespace qb {

class xmlReaderClass {
 public:
  // Parses the text, replacing whatever was loaded before. A text that is
  // not well-formed XML (an empty text too) fails with err::kXmlParse and a
  // message that tells what is wrong and where; the reader is then empty.
  void loadXML(const std::string& text);
  // The first node the path matches from the document ("//Columns",
  // ".//Columns"); nothing when none does or nothing is loaded.
  xmlNodeClass selectSingleNode(const std::string& path) const;

 private:
  std::shared_ptr<pugi::xml_document> document_;
};

}  // namespace qb
