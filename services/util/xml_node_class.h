#pragma once
// xmlNodeClass: one node of a parsed or written XML document, with the path
// look-ups the column layout reader uses (XPath, for example ".//Width").
// The node keeps its document alive. A node that a look-up did not find is
// "nothing": its tests give False, its texts "", its lists are empty.

#include <cstdint>
#include <memory>
#include <pugixml.hpp>
#include <string>

namespace qb {

class xmlNodeListClass;

class xmlNodeClass {
 public:
  // A node that is nothing.
  xmlNodeClass() = default;
  xmlNodeClass(std::shared_ptr<pugi::xml_document> document, pugi::xml_node node)
      : document_(std::move(document)), node_(node) {}

  // True when the look-up that gave this node found nothing.
  bool isNothing() const { return !node_; }
  // The element's name; "" for nothing.
  std::string nodeName() const { return node_.name(); }
  // The element's own text (its first text child); "" when it has none.
  std::string nodeText() const { return node_.text().get(); }

  // True when the path, evaluated from this node, matches a node.
  // A path that is no XPath fails with err::kInvalidCall.
  bool nodeExists(const std::string& path) const;
  // The text of the first node the path matches (an element's text or an
  // attribute's value). With no match: "" when mustExist is False (the
  // layout reader always passes False), else a failure with
  // err::kElementNotFound.
  std::string getNodeText(const std::string& path, bool mustExist) const;
  // The first node the path matches; nothing when none does.
  xmlNodeClass selectSingleNode(const std::string& path) const;
  // Every element the path matches, in document order.
  xmlNodeListClass selectNodes(const std::string& path) const;

  // For the writer, which moves its nodes about.
  pugi::xml_node handle() const { return node_; }
  const std::shared_ptr<pugi::xml_document>& document() const { return document_; }

 private:
  std::shared_ptr<pugi::xml_document> document_;
  pugi::xml_node node_;
};

}  // namespace qb
