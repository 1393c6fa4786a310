#pragma once
// nvDocumentQuillbox: the document-link component a host places on a client
// screen. For one client (a company or a contact) it shows the client's
// document categories in tvClientDocumentation and the links of the selected
// category in lvDocuments, keeps each user's view of the list in
// UserGeneralSettings, and tells the host through events when the user wants
// another client.
//
// The host drives it in this order: Initialize; the five service objects; the
// client (companyIDNum or contactIDNum); StartDocQuillboxControl;
// populateClientDocumentCategories; setupDocumentsDisplay; resizeDocQuillbox.
// Another client: write the id, then the two fills again. Before unloading
// the host may call putDocQuillboxListViewSettings; UserControl_Terminate
// (run by the destructor when the host did not) releases the helper objects
// of the module.
//
// The component is written against the toolkit-free control models: its child
// controls are models that a GUI renders and that tests drive by raising their
// events. Every procedure follows the tracing convention (Procedure, traced as
// "Orvanta.exe-nvDocumentQuillbox-<procedure>"); a failure is reported through
// the module's error object and never reaches the caller.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "control/drag_state.h"
#include "services/controls/command_button.h"
#include "services/controls/container_control.h"
#include "services/controls/event.h"
#include "services/controls/frame.h"
#include "services/controls/image_list.h"
#include "services/controls/label.h"
#include "services/controls/list_view.h"
#include "services/controls/menu_item.h"
#include "services/controls/picture_box.h"
#include "services/controls/progress_bar.h"
#include "services/controls/shade_line.h"
#include "services/controls/tree_view.h"
#include "services/errors/object_required.h"
#include "services/errors/runtime_error.h"
#include "splitter/splitter.h"

namespace qb {

class ErrorObject;
class MessageObject;
class DatabaseReference;
class WorkingFolderReference;
class LocaleReference;
class DocQuillboxClientCategoriesClass;
class docQuillboxCategoryClass;
class DataObject;
class Procedure;

// Which host screen the component serves; selects the divider column of the
// user's settings.
enum enumDocQuillboxProgram : int32_t {
  enumDocQuillboxProgramOrvanta = 1,
  enumDocQuillboxProgramAddressBook = 2,
};
enum enumListViewViews : int32_t {
  viewIcons = 1,
  viewSmallIcons = 2,
  viewList = 3,
  viewDetails = 4,
};
enum enumListViewSort : int32_t {
  sortNone = 1,
  sortAscending = 2,
  SortDescending = 3,
};
enum enumListViewArrangeIcons : int32_t {
  arrangeIconsNone = 1,
  arrangeIconsLeft = 2,
  arrangeIconsTop = 3,
};
enum enumDocQuillboxClientType : int32_t {
  enumDocQuillboxClientTypeContact = 1,
  enumDocQuillboxClientTypeCompany = 2,
};

class nvDocumentQuillbox : public ContainerControl {
 public:
  // Builds the child controls with their captions, texts and design-time
  // places, the image lists and the four pop-up menus, and wires the
  // controls' events to the component's handlers.
  explicit nvDocumentQuillbox(std::string name = "nvDocumentQuillbox", int32_t index = -1);
  // Runs UserControl_Terminate unless the host already did.
  ~nvDocumentQuillbox() override;

  // ---- Start and stop ------------------------------------------------------

  // Creates the library's reference object when the thread has none (and then
  // gives this instance ShowDocQuillboxClientNavButtons True and
  // DocQuillboxProgram 1), and the file, general and date utilities that are
  // missing. Failures are ignored.
  void Initialize();
  // Creates the category objects, reads the user's view settings and applies
  // them, sets the divider, prepares the tree, and disables three buttons for
  // a UserLevel of 5 or more. Fills neither the tree nor the list.
  void StartDocQuillboxControl();
  // Traces only.
  void UserControl_Initialize();
  // Lays the children out again (resizeSplitter); also run whenever the
  // component's size changes.
  void UserControl_Resize();
  // Releases, in this order, the file, general and date utilities of the
  // module, the two category objects and the module's reference object. The
  // five service objects stay in the module; settings are not saved.
  void UserControl_Terminate();

  // ---- Service objects (the first assignment on a thread wins) -------------
  // Failures in these are ignored.

  void setErrorClass(const std::shared_ptr<ErrorObject>& object);
  void setMsgboxClass(const std::shared_ptr<MessageObject>& object);
  // Stores the object when the module has none; a null argument leaves the
  // module without one, so a later assignment takes effect.
  void setDatabaseReference(const std::shared_ptr<qb::DatabaseReference>& object);
  // The module's store object (null when none).
  std::shared_ptr<qb::DatabaseReference> DatabaseReference() const;
  void setWorkingFolderReference(const std::shared_ptr<qb::WorkingFolderReference>& object);
  void setLocaleReference(const std::shared_ptr<qb::LocaleReference>& object);

  // ---- Client and plain properties -----------------------------------------

  enumDocQuillboxClientType clientType() const { return clientType_; }
  void setClientType(enumDocQuillboxClientType value) { clientType_ = value; }
  // Writing 0 or more makes the client that company (clientType 2, contact
  // -1); a negative value gives -1 and clears clientType when it was 2.
  int32_t companyIDNum() const { return companyIDNum_; }
  void setCompanyIDNum(int32_t value);
  // Writing 0 or more makes the client that contact (clientType 1, company
  // -1); a negative value gives -1 and clears clientType when it was 1.
  int32_t contactIDNum() const { return contactIDNum_; }
  void setContactIDNum(int32_t value);
  int16_t UserLevel() const { return UserLevel_; }
  void setUserLevel(int16_t value) { UserLevel_ = value; }
  bool ShowDocQuillboxClientNavButtons() const { return ShowDocQuillboxClientNavButtons_; }
  void setShowDocQuillboxClientNavButtons(bool value) { ShowDocQuillboxClientNavButtons_ = value; }
  enumDocQuillboxProgram DocQuillboxProgram() const { return DocQuillboxProgram_; }
  void setDocQuillboxProgram(enumDocQuillboxProgram value) { DocQuillboxProgram_ = value; }
  // Plain storage: a write changes no control; the change... methods do.
  enumListViewViews ListViewViews() const { return ListViewViews_; }
  void setListViewViews(enumListViewViews value) { ListViewViews_ = value; }
  enumListViewSort ListViewSort() const { return ListViewSort_; }
  void setListViewSort(enumListViewSort value) { ListViewSort_ = value; }
  enumListViewArrangeIcons ListViewArrangeIcons() const { return ListViewArrangeIcons_; }
  void setListViewArrangeIcons(enumListViewArrangeIcons value) { ListViewArrangeIcons_ = value; }

  // Fields the component keeps for itself, readable for hosts and tests.
  int16_t splitterPosition() const { return splitterPosition_; }
  const std::string& savedColumnsXML() const { return savedColumnsXML_; }
  bool draggingCategory() const { return drag_.draggingCategory; }
  bool draggingDocuments() const { return drag_.draggingDocuments; }
  // The six fields of drag and drop.
  const DragState& dragState() const { return drag_; }
  // The category objects StartDocQuillboxControl made; null before it ran and
  // after UserControl_Terminate.
  const std::shared_ptr<DocQuillboxClientCategoriesClass>& clientCategoriesObject() const {
    return clientCategories_;
  }
  const std::shared_ptr<docQuillboxCategoryClass>& categoryObject() const { return category_; }

  // ---- Category tree -------------------------------------------------------

  // Has the category object fill the tree for the current client. A recordset
  // with no current row (3021) is passed over without a report. The list is
  // left as it was.
  void populateClientDocumentCategories();

  // ---- Document list -------------------------------------------------------

  // Rebuilds lvDocuments for the category selected in the tree: the client
  // caption, the category caption, one row per document link with its file's
  // size and dates read afresh, and each row's own icons. With no selected
  // node the list is emptied and the category caption stays. The screen's
  // pointer is busy (11) meanwhile and back at 0 at the end; the event pump
  // runs twice per row, so user input may re-enter.
  void setupDocumentsDisplay();
  // Repaints lvDocuments; re-reads nothing.
  void refreshDocListView();
  // The document id of a row tag "Document:<id>*/<path>"; for a tag without
  // "*/" but with "Document:", the number after it; -1 otherwise or when the
  // id part is not numeric.
  int32_t getDocIDFromTag(const std::string& tag);
  // The path of a row tag (the text after the first "*/"); the whole tag when
  // it holds neither "*/" nor "Document:"; "" for "Document:" without "*/".
  std::string getDocPathFromTag(const std::string& tag);

  // ---- Adding, opening and finding documents -------------------------------
  // Every Boolean command returns False, also on success: the host must not
  // read success from it.

  // Links the files the user picks in the desktop's file dialog (several at
  // once, starting in the data folder's "Data" folder) into the selected
  // category, then rebuilds the list. A folder or a path that is neither file
  // nor folder is refused with a message and the batch goes on. Cancel
  // leaves the list as it was.
  bool addDocumentFiles();
  // Opens the selected rows' files, from the last row to the first: a file
  // in use asks first; a missing file opens the properties dialog on its
  // missing-file page; a merge document goes to the host (openDocMerge with
  // docType 7); any other file opens in the desktop's default application.
  bool openSelectedDocumentsFiles();

  // ---- Document commands ---------------------------------------------------

  // The properties dialog for the focused row; on return the row shows the
  // link's new name, path and file facts (its sub-items added in front).
  bool openDocumentProperties();
  // Removes the selected rows' links, last row first, without a question;
  // the rows leave the list without a refresh. The files stay.
  bool deleteSelectedDocuments();
  // Shows the document's category (rebuilding the list when it is another
  // one) and selects the first row with the document's display name.
  bool goToDocument(int32_t& documentID);

  // ---- Category commands ---------------------------------------------------
  // Each works on the tree's selected node and keeps the tree in step by
  // hand: the nodes change first, the store after. The client's main
  // category and the category of its merge documents refuse to be edited or
  // deleted, with a message that names them as the store does.

  // The id of the selected node's category; -1 when no node is selected or
  // its key names no category.
  int32_t getCurrentlySelectedCategoryID();
  // The category editor for a new category under the selected node; on OK
  // the new node is added under it, expanded and selected. Cancelled or
  // not, the list is rebuilt and the tree takes the focus.
  void addNewDocumentCategory();
  // The category editor for the selected node's category; on OK the node
  // shows the new name and the list is rebuilt.
  void editSelectedDocCategoryNode();
  // After the user's yes, removes the selected node (its sub-categories go
  // with it), selects the node above, else below, else its parent, rebuilds
  // the list, then deletes the category, its sub-categories and their links
  // from the store. The files stay.
  void deleteSelectedDocCategory();

  // ---- View settings -------------------------------------------------------

  // Sets ListViewViews and the list's view (details restores the saved
  // columns first); a value outside the enumeration changes nothing. Then
  // repaints the list.
  void changeDocListViewView(enumListViewViews currentView);
  void changeDocListViewSort(enumListViewSort currentSort);
  void changeDocListViewArrangeIcons(enumListViewArrangeIcons currentArrangeIcons);
  // Writes view, sort, arrangement, the column layout text and the divider
  // to the user's row of UserGeneralSettings. For a user who had no row the
  // row is made and this first save fails (a read-only reopen) and is lost.
  void putDocQuillboxListViewSettings();

  // ---- Layout --------------------------------------------------------------

  // Places the outer frame and the splitter from the component's size, then
  // runs clientDocumentationSplitter_SplitComplete.
  void resizeDocQuillbox();
  // Places every child from the splitter's and the frames' sizes (twips).
  void resizeSplitter();
  // Lays out again and keeps the splitter's position in splitterPosition.
  void clientDocumentationSplitter_SplitComplete();

  // ---- Handlers the controls' events reach ---------------------------------

  void tvClientDocumentation_MouseUp(int16_t button, int16_t shift, float x, float y);
  void tvClientDocumentation_MouseDown(int16_t button, int16_t shift, float x, float y);
  void tvClientDocumentation_Collapse(Node& node);
  void tvClientDocumentation_NodeClick(Node& node);
  void tvClientDocumentation_DblClick();
  void tvClientDocumentation_KeyUp(int16_t key, int16_t shift);
  void tvClientDocumentation_LostFocus();
  void tvClientDocumentation_OLEStartDrag(DataObject& data, int32_t& allowedEffects);
  void tvClientDocumentation_OLEDragOver(DataObject& data, int32_t& effect, int16_t button,
                                         int16_t shift, float x, float y, int16_t state);
  // The tree's drop handler (traced as DocumentListView_OLEDragDrop).
  void tvClientDocumentation_OLEDragDrop(DataObject& data, int32_t& effect, int16_t button,
                                         int16_t shift, float x, float y);
  void lvDocuments_MouseDown(int16_t button, int16_t shift, float x, float y);
  void lvDocuments_OLEStartDrag(DataObject& data, int32_t& allowedEffects);
  void lvDocuments_OLEDragOver(DataObject& data, int32_t& effect, int16_t button, int16_t shift,
                               float x, float y, int16_t state);
  void lvDocuments_OLEDragDrop(DataObject& data, int32_t& effect, int16_t button, int16_t shift,
                               float x, float y);
  // A drop on either frame is a drop on the list.
  void fraDocumentInfo_OLEDragDrop(int16_t index, DataObject& data, int32_t& effect, int16_t button,
                                   int16_t shift, float x, float y);
  void lvDocuments_ColumnClick(ColumnHeader& column);
  void lvDocuments_KeyUp(int16_t key, int16_t shift);
  void lvDocuments_DblClick();
  void lvDocuments_Click();
  void lvDocuments_ItemClick(ListItem& item);
  void lvDocuments_MouseUp(int16_t button, int16_t shift, float x, float y);
  void cmdClientNav_Click(int16_t index);
  void cmdDocManager_Click(int16_t index);
  void DocQuillboxClientCategoriesClass_setupCategoryDocumentsDisplay();
  void DocQuillboxCategoryClass_startLoadDocumentProgress(int32_t& maximum);
  void DocQuillboxCategoryClass_incLoadDocumentProgress(int32_t ignored);
  void DocQuillboxCategoryClass_endLoadDocumentProgress();
  void DocQuillboxCategoryClass_errorLoadDocument(std::string& message);

  // ---- Events to the host --------------------------------------------------

  Event<void(int32_t& companyID, int32_t& selectedDocumentID)> changeCompany;
  Event<void(int32_t& contactID, int32_t& selectedDocumentID)> changeContact;
  Event<void()> moveFirst;
  Event<void()> movePrevious;
  Event<void()> moveNext;
  Event<void()> moveLast;
  Event<void()> findClient;
  Event<void(int16_t& docType, std::string& docPath)> openDocMerge;

  // ---- Child controls, for a GUI to render and tests to drive --------------
  // Control arrays take the index in use; another index fails with
  // RuntimeError(err::kSubscript).

  Frame& fraOrvanta(int16_t index = 1);
  Frame& fraClientInfoHeader(int16_t index = 1);
  ShadeLine& lblClientName(int16_t index = 1);
  PressButton& cmdClientNav(int16_t index);  // 0 to 4
  Splitter& clientDocumentationSplitter() { return clientDocumentationSplitter_; }
  Frame& fraDocumentInfo(int16_t index);  // 0 tree side, 1 list side
  TreeView& tvClientDocumentation() { return tvClientDocumentation_; }
  ListView& lvDocuments() { return lvDocuments_; }
  PressButton& cmdDocManager(int16_t index);  // 0 to 4
  ShadeLine& headerGradient(int16_t index = 6);
  PictureBox& picFrame(int16_t index);  // 13, 14, 15
  PictureBox& picDocProgress() { return picDocProgress_; }
  ProgressBar& Progress1() { return Progress1_; }
  Label& Label24() { return Label24_; }
  Label& lblNote(int16_t index);  // 0, 1
  Label& Label26() { return Label26_; }
  ImageList& iglDocCategories() { return iglDocCategories_; }
  ImageList& iglListViewIcons() { return iglListViewIcons_; }
  ImageList& iglListViewSmallIcons() { return iglListViewSmallIcons_; }
  ImageList& iglNoIcon() { return iglNoIcon_; }
  ImageList& iglNoIconSmall() { return iglNoIconSmall_; }
  PictureBox& picIcon16() { return picIcon16_; }
  PictureBox& picIcon32() { return picIcon32_; }

  // The four pop-up menus, hidden from the bar.
  MenuBar& menus() { return menus_; }
  MenuItem& subMnuListViewRightClick() { return *subMnuListViewRightClick_; }
  MenuItem& subMnuListViewNodeRightClick() { return *subMnuListViewNodeRightClick_; }
  MenuItem& subMnuDocTreeViewRightClick() { return *subMnuDocTreeViewRightClick_; }
  MenuItem& subMnuDocTreeViewNodeRightClick() { return *subMnuDocTreeViewNodeRightClick_; }

 protected:
  void resized() override;

 private:
  // Construction: the container tree, texts and places; menus; event wiring.
  void buildControls();
  void buildMenus();
  void wireEvents();
  void wireCategoryObject();

  // The object behind a shared pointer; an unset one fails as the platform
  // does (91, object variable not set).
  template <class T>
  static T& objectOf(const std::shared_ptr<T>& object) {
    return qb::objectOf(object);
  }

  // The search dialog and what follows from its result (cmdDocManager(3)).
  bool findDocumentFiles();
  // The step that links one file into the selected category, shared by the
  // file dialog and file drops: a file gets a link; a folder, or a path that
  // is neither, is refused with a message between pointer steps (0, the
  // message, 11), and the caller goes on with its next item.
  void linkDocumentFile(const std::string& path);

  // Category commands: a fresh category object loaded (without its
  // documents) for the selected node's category; null when the node's key
  // names no category. With no selected node the read of its key fails.
  std::shared_ptr<docQuillboxCategoryClass> loadSelectedCategory(Procedure& proc);
  // The protection test of edit and delete: True (after the message) for
  // the main category and the merge documents categories. verb: "You cannot
  // edit the " or "You cannot delete the ".
  bool refusesProtectedCategory(Procedure& proc, docQuillboxCategoryClass& category,
                                const std::string& verb);

  // Drag and drop: the moves a drop on a tree node makes, each through a
  // writable recordset. Nothing happens while the store is not connected.
  void moveDocumentToDocCategory(int32_t documentID, int32_t categoryID);
  void moveDocCategoryToDocCategory(int32_t categoryID, int32_t parentID);
  // The files of a file drop linked one by one into the selected category,
  // the pointer busy meanwhile, then the list rebuilt (steps 2 to 4 of the
  // drop on the list).
  void linkDroppedFiles(Procedure& proc, DataObject& data);

  // View settings.
  void getDocQuillboxListViewSettings();
  // The opening shared by the read and the write of the user's row, run as
  // steps of the caller's procedure. connected: the store took queries;
  // hasRow: the recordset stands on the user's row.
  int32_t openUserSettings(Procedure& proc, bool& connected, bool& hasRow);
  void saveDocQuillboxColumns();
  void restoreDocQuillboxColumns();
  void setDefaultDocQuillboxColumns();

  // The right-button pop-up of the tree and the list: the message to the
  // component's own window first, then the menu for a hit or for empty space.
  void showRightClickMenu(Procedure& proc, bool hit, MenuItem& whenEmpty, MenuItem& whenHit);
  // Runs a menu item's command as the item's own click handler.
  void menuCommand(const std::string& itemName, const std::function<void()>& command);

  // Fields, in the component's declaration order.
  enumDocQuillboxProgram DocQuillboxProgram_ = static_cast<enumDocQuillboxProgram>(0);
  enumListViewViews ListViewViews_ = static_cast<enumListViewViews>(0);
  enumListViewSort ListViewSort_ = static_cast<enumListViewSort>(0);
  enumListViewArrangeIcons ListViewArrangeIcons_ = static_cast<enumListViewArrangeIcons>(0);
  enumDocQuillboxClientType clientType_ = static_cast<enumDocQuillboxClientType>(0);
  int32_t companyIDNum_ = 0;
  int32_t contactIDNum_ = 0;
  // draggingCategory, draggingDocuments, dragCategoryID,
  // categoryDragStarted, dragNodeIndex, draggedDocumentIDs.
  DragState drag_;
  int16_t UserLevel_ = 0;
  std::string savedColumnsXML_;
  bool ShowDocQuillboxClientNavButtons_ = false;
  int16_t splitterPosition_ = 0;
  bool terminated_ = false;

  std::shared_ptr<DocQuillboxClientCategoriesClass> clientCategories_;
  std::shared_ptr<docQuillboxCategoryClass> category_;

  // Child controls. Containers are declared before what they hold.
  Frame fraOrvanta_{"fraOrvanta", 1};
  Frame fraClientInfoHeader_{"fraClientInfoHeader", 1};
  ShadeLine lblClientName_{"lblClientName", 1};
  PressButton cmdClientNav_[5]{PressButton{"cmdClientNav", 0}, PressButton{"cmdClientNav", 1},
                               PressButton{"cmdClientNav", 2}, PressButton{"cmdClientNav", 3},
                               PressButton{"cmdClientNav", 4}};
  Splitter clientDocumentationSplitter_{"clientDocumentationSplitter"};
  Frame fraDocumentInfo_[2]{Frame{"fraDocumentInfo", 0}, Frame{"fraDocumentInfo", 1}};
  TreeView tvClientDocumentation_{"tvClientDocumentation"};
  PictureBox picFrame15_{"picFrame", 15};
  ShadeLine headerGradient_{"headerGradient", 6};
  PressButton cmdDocManager_[5]{PressButton{"cmdDocManager", 0}, PressButton{"cmdDocManager", 1},
                                PressButton{"cmdDocManager", 2}, PressButton{"cmdDocManager", 3},
                                PressButton{"cmdDocManager", 4}};
  PictureBox picFrame13_{"picFrame", 13};
  PictureBox picFrame14_{"picFrame", 14};
  ListView lvDocuments_{"lvDocuments"};
  PictureBox picDocProgress_{"picDocProgress"};
  ProgressBar Progress1_{"Progress1"};
  Label Label24_{"Label24"};
  Label lblNote_[2]{Label{"lblNote", 0}, Label{"lblNote", 1}};
  Label Label26_{"Label26"};
  ImageList iglDocCategories_{"iglDocCategories"};
  ImageList iglListViewIcons_{"iglListViewIcons"};
  ImageList iglListViewSmallIcons_{"iglListViewSmallIcons"};
  ImageList iglNoIcon_{"iglNoIcon"};
  ImageList iglNoIconSmall_{"iglNoIconSmall"};
  PictureBox picIcon16_{"picIcon16"};
  PictureBox picIcon32_{"picIcon32"};

  MenuBar menus_;
  MenuItem* subMnuListViewRightClick_ = nullptr;
  MenuItem* subMnuListViewNodeRightClick_ = nullptr;
  MenuItem* subMnuDocTreeViewRightClick_ = nullptr;
  MenuItem* subMnuDocTreeViewNodeRightClick_ = nullptr;
};

}  // namespace qb
