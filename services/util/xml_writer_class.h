#pragma once
// xmlWriterClass: builds an XML document node by node from a current
// position, as the column layout is written:
//
//   auto root = writer.createNode("Columns", "");
//   writer.setRootNode(root);                          // position: Columns
//   writer.appendNode(writer.createNode("column", ""), true);   // into column
//   writer.enterNode("column");                        // stays in column
//   writer.appendNode(writer.createNode("Width", "2200"), false);
//   writer.leaveNode("column");                        // back to Columns
//   std::string text = writer.getXMLText();
//
// Values are element text; the writer escapes them. The text has no XML
// declaration.

#include <memory>
#include <string>

#include "services/util/xml_node_class.h"

namespace qb {

class xmlWriterClass {
 public:
  xmlWriterClass();

  // A new element with the name and, unless the value is empty, the value as
  // its text. It belongs to no place until set as root or appended.
  xmlNodeClass createNode(const std::string& name, const std::string& value);
  // Makes the node the document's root (replacing an earlier root) and the
  // current position.
  void setRootNode(const xmlNodeClass& node);
  // Appends the node as the last child of the current position; with
  // moveIntoNode True the position moves into it. Fails with
  // err::kObjectRequired when there is no root yet, with err::kInvalidCall
  // for a node of another writer.
  void appendNode(const xmlNodeClass& node, bool moveIntoNode);
  // Makes the named element the position: the position itself when it has
  // that name, else its last child of that name. Fails with
  // err::kElementNotFound when neither exists.
  void enterNode(const std::string& name);
  // Leaves the named element: the position becomes the parent of the nearest
  // element of that name at or above it. Fails with err::kElementNotFound
  // when the position is not inside such an element.
  void leaveNode(const std::string& name);
  // The whole document as text, indented; "" before a root was set.
  std::string getXMLText() const;

 private:
  xmlNodeClass ownNode(const xmlNodeClass& node) const;

  std::shared_ptr<pugi::xml_document> document_;
  pugi::xml_node staging_;  // created nodes wait here until placed
  pugi::xml_node root_;
  pugi::xml_node position_;
};

}  // namespace qb
