#include "links/link_repoint.h"

#include "services/errors/procedure.h"
#include "services/files/file_facts_service.h"
#include "services/quillbox/library_store.h"

namespace qb::links {

const char* repointOutcomeName(RepointOutcome outcome) {
  switch (outcome) {
    case RepointOutcome::repointed:
      return "relinked";
    case RepointOutcome::notFound:
      return "not-found";
    case RepointOutcome::changedMeanwhile:
      return "changed-meanwhile";
    case RepointOutcome::failed:
      return "failed";
  }
  return "";
}

RepointOutcome repointLink(int32_t documentID, const std::string& oldPath,
                           const std::string& newPath) {
  Procedure proc("Orvanta.exe-linkHealth-repointLink");
  RepointOutcome outcome = RepointOutcome::failed;
  proc.step([&] {
    if (!fileFacts().facts(newPath).present()) {
      outcome = RepointOutcome::notFound;
      return;
    }
    DatabaseReference& db = quillboxLibrary::database();
    if (!db.isConnected()) return;
    quillboxLibrary::Recordset rs(
        db,
        quillboxLibrary::keyedSql(
            "SELECT Documents.DocumentID, Documents.DocPath FROM Documents WHERE DocumentID = ",
            documentID),
        adLockOptimistic);
    if (!rs.moveFirst() || rs.text("DocPath") != oldPath) {
      outcome = RepointOutcome::changedMeanwhile;
      return;
    }
    rs.update("DocPath", newPath);
    rs.close();
    outcome = RepointOutcome::repointed;
  });
  return outcome;
}

std::vector<RepointOutcome> repointLinks(const std::vector<PlannedMove>& moves,
                                         const Progress& progress) {
  std::vector<RepointOutcome> outcomes;
  outcomes.reserve(moves.size());
  FileFactsOperation operation;
  for (const PlannedMove& move : moves) {
    outcomes.push_back(move.newPath.empty()
                           ? RepointOutcome::notFound
                           : repointLink(move.documentID, move.oldPath, move.newPath));
    if (progress) progress(outcomes.size(), moves.size());
  }
  return outcomes;
}

}  // namespace qb::links
