#include "services/util/xml_node_class.h"

#include "services/errors/runtime_error.h"
#include "services/util/xml_node_list_class.h"

namespace qb {

namespace {

// Runs the path from the node; a path that is no XPath is the caller's fault.
pugi::xpath_node_set evaluate(const pugi::xml_node& node, const std::string& path) {
  try {
    return node.select_nodes(path.c_str());
  } catch (const pugi::xpath_exception& e) {
    throw RuntimeError(err::kInvalidCall,
                       "The path '" + path + "' is not a valid XML path: " + e.what() + ".",
                       "xmlNodeClass");
  }
}

std::string textOf(const pugi::xpath_node& match) {
  if (match.attribute()) return match.attribute().value();
  return match.node().text().get();
}

}  // namespace

bool xmlNodeClass::nodeExists(const std::string& path) const {
  return node_ && !evaluate(node_, path).empty();
}

std::string xmlNodeClass::getNodeText(const std::string& path, bool mustExist) const {
  if (node_) {
    auto matches = evaluate(node_, path);
    if (!matches.empty()) return textOf(matches.first());
  }
  if (mustExist)
    throw RuntimeError(err::kElementNotFound, "No XML node matches the path '" + path + "'.",
                       "xmlNodeClass");
  return "";
}

xmlNodeClass xmlNodeClass::selectSingleNode(const std::string& path) const {
  if (!node_) return {};
  auto matches = evaluate(node_, path);
  for (const auto& match : matches)
    if (match.node()) return xmlNodeClass(document_, match.node());
  return {};
}

xmlNodeListClass xmlNodeClass::selectNodes(const std::string& path) const {
  std::vector<xmlNodeClass> nodes;
  if (node_) {
    auto matches = evaluate(node_, path);
    matches.sort();
    for (const auto& match : matches)
      if (match.node()) nodes.emplace_back(document_, match.node());
  }
  return xmlNodeListClass(std::move(nodes));
}

xmlNodeClass xmlNodeListClass::item(int32_t index) const {
  if (index < 0 || index >= count())
    throw RuntimeError(err::kSubscript,
                       "There is no XML node at index " + std::to_string(index) + " of a list of " +
                           std::to_string(count()) + ".",
                       "xmlNodeListClass");
  return nodes_[static_cast<size_t>(index)];
}

}  // namespace qb
