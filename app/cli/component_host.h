#pragma once
// ComponentHost: the document component hosted without a screen, for the
// commands that change categories and links the way a user does in the
// document window: it is bound to the session's store and services, shows
// one client, and the command acts on it with the component's own commands,
// its category editor and its drags (a press on a node or a row, the drag's
// start, a pass over the target node and the drop, as the mouse gives them).
// Messages the component shows are kept; its questions are answered yes:
// giving the command is the user's yes.
//
//   Session session(context);
//   ComponentHost host(session, context.args.required("db"), companyID, -1);
//   host.select(categoryID);
//   host.component().deleteSelectedDocCategory();

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "control/nv_document_quillbox.h"
#include "services/host/recording_message_object.h"

namespace qb {
class frmEditDocCategory;
}

namespace qb::cli {

class Session;
struct Context;

class ComponentHost {
 public:
  // Binds a component in the host order and shows the client (one id 0 or
  // more, the other -1): its tree is filled, which makes its main category
  // when it has none.
  ComponentHost(Session& session, const std::string& databasePath, int32_t companyID,
                int32_t contactID);
  ~ComponentHost();
  ComponentHost(const ComponentHost&) = delete;
  ComponentHost& operator=(const ComponentHost&) = delete;

  nvDocumentQuillbox& component() { return *component_; }

  // The client a category or a document link belongs to: its company and
  // contact ids (-1 for none). False when there is no such row.
  static bool ownerOfCategory(int32_t categoryID, int32_t& companyID, int32_t& contactID);
  static bool ownerOfDocument(int32_t documentID, int32_t& companyID, int32_t& contactID,
                              int32_t& categoryID);

  // Selects the category's node and shows its links, as a click does. False
  // when the client's tree has no such node.
  bool select(int32_t categoryID);
  // The category of the client's main node (the top of its tree); -1 when it
  // has none.
  int32_t mainCategory();

  // Runs act in the category editor each time a command shows it.
  void inEditor(std::function<void(frmEditDocCategory&)> act);

  // Drags the category's node onto the target's node. False when the drag
  // did not start (a node at the top of the tree can't be dragged).
  bool dragCategory(int32_t categoryID, int32_t targetID);
  // Drags the document's row (the only one selected) from its category's
  // list onto the target's node. False when the row is not in the list.
  bool dragDocument(int32_t documentID, int32_t targetID);

  // What the component said, in order.
  const std::vector<RecordingMessageObject::Message>& messages() const {
    return messages_->messages;
  }
  // Ends the command: what the component said (its refusals; not the
  // questions it was answered) goes to standard error, one "quillbox: "
  // line each. The exit status: 1 when it said anything or the session
  // recorded a failure, else 0.
  int finish(Context& context, Session& session) const;

 private:
  // A press on the node's row of the tree, as the mouse gives it.
  void pressOnNode(Node& node);
  // The drag over the target node and the drop there.
  void dropOnNode(DataObject& data, Node& target);

  std::shared_ptr<RecordingMessageObject> messages_;
  std::unique_ptr<nvDocumentQuillbox> component_;
};

}  // namespace qb::cli
