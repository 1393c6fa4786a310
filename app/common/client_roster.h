#pragma once
// ClientRoster: the firm's clients as the hosts list them: the client screen
// walks them with First, Previous, Next and Last, and `quillbox clients`
// prints them. The client companies, then the contacts, each group ordered
// by name, ignoring case. The firm's own company and the firm's users are
// not clients.

#include <cstdint>
#include <string>
#include <vector>

namespace qb {
class DatabaseReference;
}

namespace qb::hosts {

struct Client {
  bool isCompany = true;
  int32_t id = -1;
  std::string name;
};

class ClientRoster {
 public:
  // Reads the clients through the store (and, for the contacts' names, the
  // module's store). An unreadable store gives an empty roster.
  static ClientRoster load(DatabaseReference& store);

  const std::vector<Client>& clients() const { return clients_; }
  int size() const { return static_cast<int>(clients_.size()); }
  bool empty() const { return clients_.empty(); }
  const Client& at(int index) const { return clients_.at(static_cast<size_t>(index)); }
  // The place of a client in the roster, -1 when it is not in it.
  int find(bool isCompany, int32_t id) const;
  // The first company that has document links, else the first client; -1
  // for an empty roster.
  int firstWithDocuments() const;

 private:
  std::vector<Client> clients_;
  std::vector<int32_t> companiesWithDocuments_;
};

}  // namespace qb::hosts
