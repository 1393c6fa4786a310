#include "services/util/xml_reader_class.h"

#include "services/errors/runtime_error.h"

namespace qb {

void xmlReaderClass::loadXML(const std::string& text) {
  document_.reset();
  auto document = std::make_shared<pugi::xml_document>();
  pugi::xml_parse_result parsed = document->load_buffer(text.data(), text.size());
  if (!parsed) {
    throw RuntimeError(err::kXmlParse,
                       std::string("The XML text could not be read: ") + parsed.description() +
                           " at character " + std::to_string(parsed.offset + 1) + ".",
                       "xmlReaderClass");
  }
  document_ = std::move(document);
}

xmlNodeClass xmlReaderClass::selectSingleNode(const std::string& path) const {
  if (!document_) return {};
  return xmlNodeClass(document_, *document_).selectSingleNode(path);
}

}  // namespace qb
