// The component's frame: construction, the service objects and their
// first-assignment rule, the client selection rules, start and stop.

#include "control/nv_document_quillbox.h"
#include "services/controls/data_object.h"
#include "services/errors/error_object.h"
#include "services/errors/procedure.h"
#include "services/host/module_state.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/quillbox/doc_quillbox_client_categories_class.h"
#include "services/quillbox/doc_quillbox_references_class.h"
#include "services/store/database_reference.h"
#include "services/util/date_utilities_class.h"
#include "services/util/file_utilities_class.h"
#include "services/util/general_utilities_class.h"

namespace qb {

namespace {
constexpr const char* kTrace = "Orvanta.exe-nvDocumentQuillbox-";

std::string trace(const char* procedure) { return std::string(kTrace) + procedure; }

[[noreturn]] void noSuchElement() { throw RuntimeError(err::kSubscript, "Subscript out of range"); }
}  // namespace

nvDocumentQuillbox::nvDocumentQuillbox(std::string name, int32_t index)
    : ContainerControl(std::move(name), index) {
  buildControls();
  buildMenus();
  wireEvents();
}

nvDocumentQuillbox::~nvDocumentQuillbox() {
  if (!terminated_) UserControl_Terminate();
}

// ---- Construction ------------------------------------------------------------

void nvDocumentQuillbox::buildControls() {
  // The container tree: the outer frame holds the header strip and the
  // splitter; the splitter holds the tree side and the list side.
  add(fraOrvanta_);
  fraOrvanta_.add(fraClientInfoHeader_);
  fraOrvanta_.add(clientDocumentationSplitter_);
  fraClientInfoHeader_.add(lblClientName_);
  for (PressButton& button : cmdClientNav_) fraClientInfoHeader_.add(button);
  clientDocumentationSplitter_.add(fraDocumentInfo_[0]);
  clientDocumentationSplitter_.add(fraDocumentInfo_[1]);
  fraDocumentInfo_[0].add(cmdDocManager_[4]);
  fraDocumentInfo_[0].add(tvClientDocumentation_);
  fraDocumentInfo_[1].add(picFrame15_);
  fraDocumentInfo_[1].add(picFrame13_);
  picFrame15_.add(headerGradient_);
  for (int i = 0; i < 4; ++i) picFrame15_.add(cmdDocManager_[i]);
  picFrame13_.add(Label26_);
  picFrame13_.add(picFrame14_);
  picFrame13_.add(lblNote_[0]);
  picFrame13_.add(lblNote_[1]);
  picFrame14_.add(lvDocuments_);
  picFrame14_.add(picDocProgress_);
  picDocProgress_.add(Label24_);
  picDocProgress_.add(Progress1_);
  for (ImageList* images : {&iglDocCategories_, &iglListViewIcons_, &iglListViewSmallIcons_,
                            &iglNoIcon_, &iglNoIconSmall_}) {
    add(*images);
    images->setVisible(false);
  }
  add(picIcon16_);
  add(picIcon32_);
  picIcon16_.setVisible(false);
  picIcon32_.setVisible(false);

  // Design-time places (twips); the layout code replaces what matters.
  fraOrvanta_.Move(0, 0, 11520, 7200);
  fraClientInfoHeader_.Move(45, 45, 11430, 510);
  lblClientName_.Move(0, 0, 11430, 510);
  lblClientName_.setCaption(" Client Information");
  static const char* const kNavTips[] = {"First Client", "Previous Client", "Next Client",
                                         "Last Client"};
  for (int i = 0; i < 4; ++i) {
    cmdClientNav_[i].Move(9465 + 360 * i, 105, 345, 330);
    cmdClientNav_[i].setToolTipText(kNavTips[i]);
  }
  cmdClientNav_[4].Move(9900, 90, 1200, 360);
  cmdClientNav_[4].setCaption("Find Client");
  cmdClientNav_[4].setToolTipText("Find Client");

  clientDocumentationSplitter_.Move(45, 565, 11430, 6590);
  fraDocumentInfo_[0].Move(0, 0, 2800, 6590);
  fraDocumentInfo_[1].Move(2870, 0, 8560, 6590);
  cmdDocManager_[4].Move(70, 45, 2660, 360);
  tvClientDocumentation_.Move(70, 450, 2660, 6070);
  tvClientDocumentation_.setImageList(&iglDocCategories_);

  picFrame15_.Move(70, 70, 8420, 465);
  headerGradient_.Move(0, 0, 8420, 465);
  headerGradient_.setCaption("  Document Quillbox");
  static const char* const kManagerCaptions[] = {"Add Shortcut", "Open Shortcut", "Delete Shortcut",
                                                 "Find Shortcut", "Add Categories"};
  for (int i = 0; i < 5; ++i) {
    cmdDocManager_[i].setCaption(kManagerCaptions[i]);
    cmdDocManager_[i].setToolTipText(kManagerCaptions[i]);
  }
  for (int i = 0; i < 4; ++i) cmdDocManager_[i].Move(1820 + 1380 * i, 60, 1320, 345);

  picFrame13_.Move(70, 630, 8420, 5890);
  Label26_.Move(60, 90, 8000, 255);
  Label26_.setCaption("Drag 'n drop your client documents in the white box below for easy access.");
  picFrame14_.Move(60, 375, 8300, 4930);
  picFrame14_.setBorderStyle(1);
  lvDocuments_.Move(45, 45, 8210, 4840);
  lvDocuments_.setMultiSelect(true);
  // Rows start drags by themselves; files and rows are dropped on the list
  // and on both frames, which pass their drops to the list.
  lvDocuments_.setOLEDragMode(vbOLEDragAutomatic);
  lvDocuments_.setOLEDropMode(vbOLEDropManual);
  for (Frame& side : fraDocumentInfo_) side.setOLEDropMode(vbOLEDropManual);
  lvDocuments_.setIcons(&iglListViewIcons_);
  lvDocuments_.setSmallIcons(&iglListViewSmallIcons_);
  lblNote_[0].Move(135, 5380, 500, 255);
  lblNote_[0].setCaption("Note:");
  lblNote_[1].Move(660, 5380, 7600, 450);
  lblNote_[1].setCaption(
      "The document icons inside the white box are shortcuts to the original document files. "
      "Moving, renaming or deleting the shortcuts will not affect the original document files.");

  picDocProgress_.Move(1855, 1920, 4500, 1000);
  picDocProgress_.setBorderStyle(1);
  picDocProgress_.setVisible(false);
  Label24_.Move(120, 120, 4260, 255);
  Label24_.setCaption("Adding shortcuts to documents. Please wait ...");
  Progress1_.Move(120, 480, 4260, 300);

  // The category pictures by key: an open and a closed folder, and a page.
  iglDocCategories_.ListImages().Add(0, "OneOpened", Picture::themeIcon("folder-open", 16));
  iglDocCategories_.ListImages().Add(0, "report", Picture::themeIcon("text-x-generic", 16));
  iglDocCategories_.ListImages().Add(0, "OneClosed", Picture::themeIcon("folder", 16));
  iglListViewIcons_.setImageWidth(32);
  iglListViewIcons_.setImageHeight(32);
  iglNoIcon_.setImageWidth(32);
  iglNoIcon_.setImageHeight(32);
}

void nvDocumentQuillbox::wireEvents() {
  tvClientDocumentation_.MouseUp = [this](int16_t button, int16_t shift, float x, float y) {
    tvClientDocumentation_MouseUp(button, shift, x, y);
  };
  tvClientDocumentation_.MouseDown = [this](int16_t button, int16_t shift, float x, float y) {
    tvClientDocumentation_MouseDown(button, shift, x, y);
  };
  tvClientDocumentation_.DblClick = [this] { tvClientDocumentation_DblClick(); };
  tvClientDocumentation_.KeyUp = [this](int16_t key, int16_t shift) {
    tvClientDocumentation_KeyUp(key, shift);
  };
  tvClientDocumentation_.OLEStartDrag = [this](DataObject& data, int32_t& allowedEffects) {
    tvClientDocumentation_OLEStartDrag(data, allowedEffects);
  };
  tvClientDocumentation_.OLEDragOver = [this](DataObject& data, int32_t& effect, int16_t button,
                                              int16_t shift, float x, float y, int16_t state) {
    tvClientDocumentation_OLEDragOver(data, effect, button, shift, x, y, state);
  };
  tvClientDocumentation_.OLEDragDrop = [this](DataObject& data, int32_t& effect, int16_t button,
                                              int16_t shift, float x, float y) {
    tvClientDocumentation_OLEDragDrop(data, effect, button, shift, x, y);
  };
  lvDocuments_.MouseDown = [this](int16_t button, int16_t shift, float x, float y) {
    lvDocuments_MouseDown(button, shift, x, y);
  };
  lvDocuments_.OLEStartDrag = [this](DataObject& data, int32_t& allowedEffects) {
    lvDocuments_OLEStartDrag(data, allowedEffects);
  };
  lvDocuments_.OLEDragOver = [this](DataObject& data, int32_t& effect, int16_t button,
                                    int16_t shift, float x, float y, int16_t state) {
    lvDocuments_OLEDragOver(data, effect, button, shift, x, y, state);
  };
  lvDocuments_.OLEDragDrop = [this](DataObject& data, int32_t& effect, int16_t button,
                                    int16_t shift, float x, float y) {
    lvDocuments_OLEDragDrop(data, effect, button, shift, x, y);
  };
  for (int16_t i = 0; i < 2; ++i) {
    fraDocumentInfo_[i].OLEDragDrop = [this, i](DataObject& data, int32_t& effect, int16_t button,
                                                int16_t shift, float x, float y) {
      fraDocumentInfo_OLEDragDrop(i, data, effect, button, shift, x, y);
    };
  }
  tvClientDocumentation_.Collapse = [this](Node& node) { tvClientDocumentation_Collapse(node); };
  tvClientDocumentation_.NodeClick = [this](Node& node) { tvClientDocumentation_NodeClick(node); };
  tvClientDocumentation_.LostFocus = [this] { tvClientDocumentation_LostFocus(); };
  lvDocuments_.ColumnClick = [this](ColumnHeader& column) { lvDocuments_ColumnClick(column); };
  lvDocuments_.Click = [this] { lvDocuments_Click(); };
  lvDocuments_.DblClick = [this] { lvDocuments_DblClick(); };
  lvDocuments_.KeyUp = [this](int16_t key, int16_t shift) { lvDocuments_KeyUp(key, shift); };
  lvDocuments_.ItemClick = [this](ListItem& item) { lvDocuments_ItemClick(item); };
  lvDocuments_.MouseUp = [this](int16_t button, int16_t shift, float x, float y) {
    lvDocuments_MouseUp(button, shift, x, y);
  };
  clientDocumentationSplitter_.SplitComplete = [this] {
    clientDocumentationSplitter_SplitComplete();
  };
  for (int16_t i = 0; i < 5; ++i) {
    cmdClientNav_[i].Click = [this, i] { cmdClientNav_Click(i); };
    cmdDocManager_[i].Click = [this, i] { cmdDocManager_Click(i); };
  }
}

// The long-lived category object's load events reach the progress handlers.
void nvDocumentQuillbox::wireCategoryObject() {
  category_->startLoadDocumentProgress = [this](int32_t& maximum) {
    DocQuillboxCategoryClass_startLoadDocumentProgress(maximum);
  };
  category_->incLoadDocumentProgress = [this](int32_t step) {
    DocQuillboxCategoryClass_incLoadDocumentProgress(step);
  };
  category_->endLoadDocumentProgress = [this] {
    DocQuillboxCategoryClass_endLoadDocumentProgress();
  };
  category_->errorLoadDocument = [this](std::string& message) {
    DocQuillboxCategoryClass_errorLoadDocument(message);
  };
}

// ---- Start and stop --------------------------------------------------------

void nvDocumentQuillbox::Initialize() {
  Procedure proc(trace("Initialize"), Procedure::Mode::Resume);
  ModuleState& module = moduleState();
  proc.step([&] {
    if (module.references) return;
    module.references = std::make_shared<docQuillboxReferencesClass>();
    // Only the instance that made the reference object gets the defaults; a
    // second one keeps False and 0 until the host writes them.
    ShowDocQuillboxClientNavButtons_ = true;
    DocQuillboxProgram_ = enumDocQuillboxProgramOrvanta;
  });
  proc.step([&] {
    if (!module.fileUtilities) module.fileUtilities = std::make_shared<fileUtilitiesClass>();
  });
  proc.step([&] {
    if (!module.generalUtilities)
      module.generalUtilities = std::make_shared<generalUtilitiesClass>();
  });
  proc.step([&] {
    if (!module.dateUtilities) module.dateUtilities = std::make_shared<dateUtilitiesClass>();
  });
}

void nvDocumentQuillbox::StartDocQuillboxControl() {
  Procedure proc(trace("StartDocQuillboxControl"));
  proc.step([&] {
    clientCategories_ = std::make_shared<DocQuillboxClientCategoriesClass>();
    clientCategories_->setupCategoryDocumentsDisplay = [this] {
      DocQuillboxClientCategoriesClass_setupCategoryDocumentsDisplay();
    };
    clientCategories_->setTreeView(tvClientDocumentation_);
  });
  proc.step([&] {
    category_ = std::make_shared<docQuillboxCategoryClass>();
    wireCategoryObject();
  });
  proc.step([&] { drag_.draggingCategory = false; });
  proc.step([&] { drag_.draggingDocuments = false; });
  proc.step([&] { getDocQuillboxListViewSettings(); });
  proc.step([&] { clientDocumentationSplitter_.setLeftOrTopControl(&fraDocumentInfo_[0]); });
  proc.step([&] { clientDocumentationSplitter_.setRightOrBottomControl(&fraDocumentInfo_[1]); });
  proc.step([&] { clientDocumentationSplitter_.setSplitterPosition(splitterPosition_); });
  proc.step(
      [&] { objectOf(moduleState().generalUtilities).prepareTreeView(tvClientDocumentation_); });
  proc.step([&] {
    // The one place the access level acts: Open, Find and Add Categories go
    // grey; Delete Shortcut stays.
    if (UserLevel_ < 5) return;
    cmdDocManager_[1].setEnabled(false);
    cmdDocManager_[3].setEnabled(false);
    cmdDocManager_[4].setEnabled(false);
  });
}

void nvDocumentQuillbox::UserControl_Initialize() {
  Procedure proc(trace("UserControl_Initialize"));
}

void nvDocumentQuillbox::UserControl_Resize() {
  Procedure proc(trace("UserControl_Resize"));
  proc.step([&] { resizeSplitter(); });
}

void nvDocumentQuillbox::resized() { UserControl_Resize(); }

void nvDocumentQuillbox::UserControl_Terminate() {
  Procedure proc(trace("UserControl_Terminate"));
  terminated_ = true;
  ModuleState& module = moduleState();
  proc.step([&] { module.fileUtilities.reset(); });
  proc.step([&] { module.generalUtilities.reset(); });
  proc.step([&] { module.dateUtilities.reset(); });
  proc.step([&] { clientCategories_.reset(); });
  proc.step([&] { category_.reset(); });
  proc.step([&] { module.references.reset(); });
}

// ---- Service objects -------------------------------------------------------

void nvDocumentQuillbox::setErrorClass(const std::shared_ptr<ErrorObject>& object) {
  Procedure proc(trace("errorClass"), Procedure::Mode::Resume);
  ModuleState& module = moduleState();
  if (!module.errorClass) {
    proc.step([&] { module.errorClass = object; });
    proc.step([&] { objectOf(module.generalUtilities).setErrorClass(object); });
    proc.step([&] { objectOf(module.dateUtilities).setErrorClass(object); });
  }
  proc.step([&] { objectOf(module.references).setErrorClass(module.errorClass); });
}

void nvDocumentQuillbox::setMsgboxClass(const std::shared_ptr<MessageObject>& object) {
  Procedure proc(trace("MsgboxClass"), Procedure::Mode::Resume);
  ModuleState& module = moduleState();
  proc.step([&] {
    if (!module.msgboxClass) module.msgboxClass = object;
  });
  proc.step([&] { objectOf(module.references).setMsgboxClass(module.msgboxClass); });
}

void nvDocumentQuillbox::setDatabaseReference(
    const std::shared_ptr<qb::DatabaseReference>& object) {
  Procedure proc(trace("DatabaseReference"), Procedure::Mode::Resume);
  ModuleState& module = moduleState();
  proc.step([&] {
    if (!module.databaseReference) module.databaseReference = object;
  });
  proc.step([&] {
    if (object) objectOf(module.references).setDatabaseReference(module.databaseReference);
  });
}

std::shared_ptr<qb::DatabaseReference> nvDocumentQuillbox::DatabaseReference() const {
  return moduleState().databaseReference;
}

void nvDocumentQuillbox::setWorkingFolderReference(
    const std::shared_ptr<qb::WorkingFolderReference>& object) {
  Procedure proc(trace("WorkingFolderReference"), Procedure::Mode::Resume);
  ModuleState& module = moduleState();
  if (module.workingFolderReference) return;
  proc.step([&] { module.workingFolderReference = object; });
  proc.step([&] { objectOf(module.references).setWorkingFolderReference(object); });
}

void nvDocumentQuillbox::setLocaleReference(const std::shared_ptr<qb::LocaleReference>& object) {
  Procedure proc(trace("LocaleReference"), Procedure::Mode::Resume);
  ModuleState& module = moduleState();
  if (module.localeReference) return;
  proc.step([&] { module.localeReference = object; });
  proc.step([&] { objectOf(module.references).setLocaleReference(object); });
}

// ---- Client selection ------------------------------------------------------

void nvDocumentQuillbox::setCompanyIDNum(int32_t value) {
  if (value >= 0) {
    clientType_ = enumDocQuillboxClientTypeCompany;
    companyIDNum_ = value;
    contactIDNum_ = -1;
    return;
  }
  companyIDNum_ = -1;
  if (clientType_ == enumDocQuillboxClientTypeCompany)
    clientType_ = static_cast<enumDocQuillboxClientType>(0);
}

void nvDocumentQuillbox::setContactIDNum(int32_t value) {
  if (value >= 0) {
    clientType_ = enumDocQuillboxClientTypeContact;
    contactIDNum_ = value;
    companyIDNum_ = -1;
    return;
  }
  contactIDNum_ = -1;
  if (clientType_ == enumDocQuillboxClientTypeContact)
    clientType_ = static_cast<enumDocQuillboxClientType>(0);
}

// ---- Child controls by index -----------------------------------------------

Frame& nvDocumentQuillbox::fraOrvanta(int16_t index) {
  if (index != 1) noSuchElement();
  return fraOrvanta_;
}

Frame& nvDocumentQuillbox::fraClientInfoHeader(int16_t index) {
  if (index != 1) noSuchElement();
  return fraClientInfoHeader_;
}

ShadeLine& nvDocumentQuillbox::lblClientName(int16_t index) {
  if (index != 1) noSuchElement();
  return lblClientName_;
}

PressButton& nvDocumentQuillbox::cmdClientNav(int16_t index) {
  if (index < 0 || index > 4) noSuchElement();
  return cmdClientNav_[index];
}

Frame& nvDocumentQuillbox::fraDocumentInfo(int16_t index) {
  if (index < 0 || index > 1) noSuchElement();
  return fraDocumentInfo_[index];
}

PressButton& nvDocumentQuillbox::cmdDocManager(int16_t index) {
  if (index < 0 || index > 4) noSuchElement();
  return cmdDocManager_[index];
}

ShadeLine& nvDocumentQuillbox::headerGradient(int16_t index) {
  if (index != 6) noSuchElement();
  return headerGradient_;
}

PictureBox& nvDocumentQuillbox::picFrame(int16_t index) {
  switch (index) {
    case 13:
      return picFrame13_;
    case 14:
      return picFrame14_;
    case 15:
      return picFrame15_;
    default:
      noSuchElement();
  }
}

Label& nvDocumentQuillbox::lblNote(int16_t index) {
  if (index < 0 || index > 1) noSuchElement();
  return lblNote_[index];
}

}  // namespace qb
