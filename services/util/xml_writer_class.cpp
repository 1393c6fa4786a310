#include "services/util/xml_writer_class.h"

#include <sstream>

#include "services/errors/runtime_error.h"

namespace qb {

namespace {
constexpr const char* kSource = "xmlWriterClass";
}

xmlWriterClass::xmlWriterClass() : document_(std::make_shared<pugi::xml_document>()) {
  staging_ = document_->append_child("staging");
}

xmlNodeClass xmlWriterClass::createNode(const std::string& name, const std::string& value) {
  pugi::xml_node node = staging_.append_child(name.c_str());
  if (!value.empty()) node.text().set(value.c_str());
  return xmlNodeClass(document_, node);
}

xmlNodeClass xmlWriterClass::ownNode(const xmlNodeClass& node) const {
  if (node.isNothing() || node.document() != document_)
    throw RuntimeError(err::kInvalidCall, "The XML node was not created by this writer.", kSource);
  return node;
}

void xmlWriterClass::setRootNode(const xmlNodeClass& node) {
  pugi::xml_node moved = ownNode(node).handle();
  if (root_ && root_ != moved) document_->remove_child(root_);
  root_ = document_->prepend_move(moved);
  position_ = root_;
}

void xmlWriterClass::appendNode(const xmlNodeClass& node, bool moveIntoNode) {
  pugi::xml_node moved = ownNode(node).handle();
  if (!position_)
    throw RuntimeError(err::kObjectRequired, "The XML document has no root node yet.", kSource);
  pugi::xml_node placed = position_.append_move(moved);
  if (moveIntoNode) position_ = placed;
}

void xmlWriterClass::enterNode(const std::string& name) {
  if (position_ && name == position_.name()) return;
  pugi::xml_node found;
  for (pugi::xml_node child = position_.last_child(); child; child = child.previous_sibling())
    if (name == child.name()) {
      found = child;
      break;
    }
  if (!found)
    throw RuntimeError(err::kElementNotFound, "There is no XML node '" + name + "' to enter.",
                       kSource);
  position_ = found;
}

void xmlWriterClass::leaveNode(const std::string& name) {
  for (pugi::xml_node node = position_; node && node != document_->root(); node = node.parent()) {
    if (name == node.name() && node != root_) {
      position_ = node.parent();
      return;
    }
  }
  throw RuntimeError(err::kElementNotFound,
                     "The position is not inside an XML node '" + name + "' to leave.", kSource);
}

std::string xmlWriterClass::getXMLText() const {
  if (!root_) return "";
  std::ostringstream out;
  root_.print(out, "  ", pugi::format_indent);
  return out.str();
}

}  // namespace qb
