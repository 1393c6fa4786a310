// The document list: the fill from the selected category, the row tags that
// every command reads back, the column sort, the load progress and the
// list's own handlers.

#include <string>

#include "control/nv_document_quillbox.h"
#include "control/row_tags.h"
#include "data/mod_database_functions.h"
#include "services/controls/platform.h"
#include "services/errors/procedure.h"
#include "services/files/file_facts_service.h"
#include "services/host/locale_reference.h"
#include "services/host/message_object.h"
#include "services/host/module_state.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/quillbox/doc_quillbox_document_class.h"
#include "services/runtime/conversions.h"
#include "services/runtime/format.h"
#include "services/runtime/strings.h"
#include "services/util/file_size_text.h"
#include "services/util/file_utilities_class.h"
#include "services/util/general_utilities_class.h"

namespace qb {

namespace {

using namespace rowTags;

constexpr const char* kFileDateFormat = "m/d/yy  h:nn am/pm";

// "<size in megabytes, two decimals> Mb".
std::string sizeText(int32_t bytes) { return megabytesText(bytes) + " Mb"; }

}  // namespace

void nvDocumentQuillbox::setupDocumentsDisplay() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-setupDocumentsDisplay");
  ModuleState& module = moduleState();
  // One question per file for the whole fill; a dead share is waited on once.
  FileFactsOperation fileQueries;
  proc.step([&] { screen().setMousePointer(11); });
  proc.step([&] {
    std::string name =
        clientType_ == enumDocQuillboxClientTypeCompany
            ? modDatabaseFunctions::getCompanyNameFromCompanyID(companyIDNum_)
            : modDatabaseFunctions::getContactNameDisplayed(contactIDNum_, -1, false);
    lblClientName_.setCaption(objectOf(module.generalUtilities).formatCaptionText(name));
  });
  // The list lets go of its image lists before their pictures are cleared.
  proc.step([&] { lvDocuments_.ListItems().Clear(); });
  proc.step([&] { lvDocuments_.setIcons(nullptr); });
  proc.step([&] { lvDocuments_.setSmallIcons(nullptr); });
  proc.step([&] { iglListViewIcons_.ListImages().Clear(); });
  proc.step([&] { iglListViewSmallIcons_.ListImages().Clear(); });

  Node* node = nullptr;
  proc.step([&] { node = tvClientDocumentation_.SelectedItem(); });
  // A node whose key is not a category's is left alone, as every operation
  // on a node leaves it.
  bool isCategory = false;
  proc.step([&] {
    isCategory = node != nullptr && InStr(node->Key(), kCategoryKey, CompareMode::Text) > 0;
  });
  if (isCategory) {
    bool loaded = false;
    proc.step([&] { objectOf(category_).setCategoryID(categoryIDFromKey(node->Key())); });
    proc.step([&] {
      bool loadDocuments = true;
      objectOf(category_).loadCategory(loadDocuments, loaded);
    });
    if (loaded) {
      // Rows stay in load order while they come in, so that each row's
      // Index names its own pictures.
      bool wasSorted = false;
      proc.step([&] { wasSorted = lvDocuments_.Sorted(); });
      proc.step([&] { lvDocuments_.setSorted(false); });
      proc.step([&] {
        headerGradient_.setCaption(objectOf(module.generalUtilities)
                                       .formatCaptionText(objectOf(category_).categoryName()));
      });
      bool more = false;
      proc.step([&] { objectOf(category_).moveFirstDocument(more); });
      if (more) {
        while (!proc.leaving()) {
          bool atEnd = true;
          proc.step([&] { objectOf(category_).isEndOfDocuments(atEnd); });
          if (atEnd) break;
          std::shared_ptr<docQuillboxDocumentClass> document;
          std::string path;
          ListItem* row = nullptr;
          proc.step([&] {
            document = objectOf(category_).currentDocument();
            path = objectOf(document).documentPath();
          });
          // A row that could not be added is "nothing": using it fails (91).
          auto theRow = [&]() -> ListItem& {
            if (row == nullptr) throw RuntimeError(err::kObjectRequired, "Object variable not set");
            return *row;
          };
          proc.step([&] { row = &lvDocuments_.ListItems().Add(); });
          proc.step([&] { theRow().setText(objectOf(document).documentName()); });
          proc.step([&] { theRow().setTag(documentTag(objectOf(document).documentID(), path)); });
          // Size and dates come from the file itself, read afresh for each row.
          auto fileDate = [&](int16_t kind) {
            return Format(objectOf(module.fileUtilities).getFileDate(path, kind, true),
                          kFileDateFormat);
          };
          proc.step([&] {
            theRow().ListSubItems().Add(1, "",
                                        sizeText(objectOf(module.fileUtilities).getFileSize(path)));
          });
          proc.step([&] { theRow().ListSubItems().Add(2, "", fileDate(fileDateLastModified)); });
          proc.step([&] { theRow().ListSubItems().Add(3, "", objectOf(document).documentPath()); });
          proc.step(
              [&] { theRow().ListSubItems().Add(4, "", objectOf(document).hostComputerName()); });
          proc.step([&] { theRow().ListSubItems().Add(5, "", fileDate(fileDateCreated)); });
          proc.step([&] { theRow().ListSubItems().Add(6, "", fileDate(fileDateLastAccessed)); });
          proc.step([&] {
            theRow().ListSubItems().Add(
                7, "",
                modDatabaseFunctions::getUserNameFromUserID(objectOf(document).addedByUserID()));
          });
          // Each row's pictures go in at the row's Index under "Key:<Index>"; a
          // row without a picture leaves a gap that the next row's Add refuses.
          auto addPicture = [&](ImageList& images, const Picture& picture) {
            if (picture.isEmpty()) return;
            images.ListImages().Add(theRow().Index(), "Key:" + std::to_string(theRow().Index()),
                                    picture);
          };
          proc.step(
              [&] { addPicture(iglListViewSmallIcons_, objectOf(document).smallIconPicture()); });
          proc.step([&] { addPicture(iglListViewIcons_, objectOf(document).largeIconPicture()); });
          // The pump may run a nested fill that empties the list: the row is
          // not touched after it.
          proc.step([&] { DoEvents(); });
          proc.step([&] { DoEvents(); });
          proc.step([&] { objectOf(category_).moveNextDocument(more); });
        }
        proc.step([&] { lvDocuments_.setIcons(&iglListViewIcons_); });
        proc.step([&] { lvDocuments_.setSmallIcons(&iglListViewSmallIcons_); });
        proc.step([&] {
          for (int32_t i = 1; i <= lvDocuments_.ListItems().Count(); ++i) {
            ListItem& item = lvDocuments_.ListItems().item(i);
            item.setIcon(item.Index());
            item.setSmallIcon(item.Index());
          }
        });
      }
      proc.step([&] { lvDocuments_.setSorted(wasSorted); });
    }
  }
  proc.step([&] { screen().setMousePointer(0); });
}

void nvDocumentQuillbox::refreshDocListView() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-refreshDocListView");
  proc.step([&] { lvDocuments_.Refresh(); });
}

int32_t nvDocumentQuillbox::getDocIDFromTag(const std::string& tag) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-getDocIDFromTag");
  int32_t result = -1;
  proc.step([&] {
    int32_t mark = InStr(tag, kTagPathMark);
    if (mark > 0) {
      // The characters between "Document:" and the first "*/".
      int32_t count = mark - Len(kDocumentTag) - 1;
      if (count < 0) throw RuntimeError(err::kInvalidCall, "Invalid procedure call or argument");
      std::string id = Mid(tag, Len(kDocumentTag) + 1, count);
      if (IsNumeric(Variant(id))) result = CLng(Variant(id));
    } else if (InStr(tag, kDocumentTag) > 0) {
      result = CLng(Variant(Right(tag, Len(tag) - Len(kDocumentTag))));
    }
  });
  return result;
}

std::string nvDocumentQuillbox::getDocPathFromTag(const std::string& tag) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-getDocPathFromTag");
  std::string result;
  proc.step([&] {
    int32_t mark = InStr(tag, kTagPathMark);
    if (mark > 0) {
      result = Mid(tag, mark + 2);
    } else if (InStr(tag, kDocumentTag) == 0) {
      result = tag;
    }
  });
  return result;
}

void nvDocumentQuillbox::lvDocuments_ColumnClick(ColumnHeader& column) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-lvDocuments_ColumnClick");
  // The saved sort (ListViewSort) is not touched: it keeps what the menu chose.
  proc.step([&] {
    int16_t key = static_cast<int16_t>(column.Index() - 1);
    if (lvDocuments_.Sorted() && lvDocuments_.SortKey() == key) {
      lvDocuments_.setSortOrder(static_cast<int16_t>(1 - lvDocuments_.SortOrder()));
    } else {
      lvDocuments_.setSortOrder(lvwAscending);
      lvDocuments_.setSortKey(key);
    }
  });
  proc.step([&] { lvDocuments_.setSorted(true); });
}

void nvDocumentQuillbox::lvDocuments_KeyUp(int16_t key, int16_t) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-lvDocuments_KeyUp");
  constexpr int16_t kDelete = 46;
  constexpr int16_t kEnter = 13;
  proc.step([&] {
    if (key == kDelete) {
      deleteSelectedDocuments();
    } else if (key == kEnter) {
      openSelectedDocumentsFiles();
    }
  });
}

void nvDocumentQuillbox::lvDocuments_DblClick() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-lvDocuments_DblClick");
  proc.step([&] { openSelectedDocumentsFiles(); });
}

void nvDocumentQuillbox::lvDocuments_Click() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-lvDocuments_Click");
}

void nvDocumentQuillbox::lvDocuments_ItemClick(ListItem&) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-lvDocuments_ItemClick");
}

void nvDocumentQuillbox::lvDocuments_MouseUp(int16_t button, int16_t, float x, float y) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-lvDocuments_MouseUp");
  if (button != 2) return;
  bool hit = false;
  proc.step([&] { hit = lvDocuments_.HitTest(x, y) != nullptr; });
  showRightClickMenu(proc, hit, *subMnuListViewRightClick_, *subMnuListViewNodeRightClick_);
}

// ---- Load progress ---------------------------------------------------------

void nvDocumentQuillbox::DocQuillboxCategoryClass_startLoadDocumentProgress(int32_t& maximum) {
  Procedure proc(
      "Orvanta.exe-nvDocumentQuillbox-DocQuillboxCategoryClass_startLoadDocumentProgress");
  proc.step([&] { picDocProgress_.setVisible(true); });
  proc.step([&] { Progress1_.setMax(static_cast<float>(maximum)); });
  proc.step([&] { Progress1_.setMin(0); });
  proc.step([&] { Progress1_.setValue(0); });
}

void nvDocumentQuillbox::DocQuillboxCategoryClass_incLoadDocumentProgress(int32_t) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-DocQuillboxCategoryClass_incLoadDocumentProgress");
  // A full bar stays full.
  proc.step([&] {
    if (Progress1_.Max() > Progress1_.Value()) Progress1_.setValue(Progress1_.Value() + 1);
  });
}

void nvDocumentQuillbox::DocQuillboxCategoryClass_endLoadDocumentProgress() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-DocQuillboxCategoryClass_endLoadDocumentProgress");
  proc.step([&] { picDocProgress_.setVisible(false); });
  proc.step([&] { picDocProgress_.Refresh(); });
}

void nvDocumentQuillbox::DocQuillboxCategoryClass_errorLoadDocument(std::string& message) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-DocQuillboxCategoryClass_errorLoadDocument");
  // The load goes on after the message.
  proc.step([&] {
    ModuleState& module = moduleState();
    objectOf(module.msgboxClass)
        .showMessage(message, 3, objectOf(module.localeReference).getOwnerForm());
  });
}

}  // namespace qb
