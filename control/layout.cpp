// The layout: every child is placed by code from the component's size and the
// divider, in twips relative to its container. A narrow component gives
// negative Left values, which are applied as they come; a negative height is
// refused by the control and goes to the handler.

#include "control/nv_document_quillbox.h"
#include "services/errors/procedure.h"

namespace qb {

void nvDocumentQuillbox::resizeDocQuillbox() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-resizeDocQuillbox");
  Frame& outer = fraOrvanta_;
  Splitter& splitter = clientDocumentationSplitter_;
  proc.step([&] { outer.setLeft(0); });
  proc.step([&] { outer.setTop(0); });
  proc.step([&] { outer.setHeight(Height()); });
  proc.step([&] { outer.setWidth(Width()); });
  proc.step([&] { splitter.setTop(565); });
  proc.step([&] { splitter.setHeight(outer.Height() - 565 - 45); });
  proc.step([&] { splitter.setWidth(outer.Width() - 90); });
  proc.step([&] { clientDocumentationSplitter_SplitComplete(); });
}

void nvDocumentQuillbox::clientDocumentationSplitter_SplitComplete() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-clientDocumentationSplitter_SplitComplete");
  proc.step([&] { resizeSplitter(); });
  proc.step([&] {
    splitterPosition_ = static_cast<int16_t>(clientDocumentationSplitter_.SplitterPosition());
  });
}

void nvDocumentQuillbox::resizeSplitter() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-resizeSplitter");
  Frame& header = fraClientInfoHeader_;
  Frame& treeSide = fraDocumentInfo_[0];
  Frame& listSide = fraDocumentInfo_[1];
  PictureBox& buttonStrip = picFrame15_;
  PictureBox& panel = picFrame13_;
  PictureBox& listBox = picFrame14_;

  // The header strip: client name and navigation buttons from the right.
  proc.step([&] { header.setLeft(clientDocumentationSplitter_.Left()); });
  proc.step([&] { header.setWidth(clientDocumentationSplitter_.Width()); });
  proc.step([&] { lblClientName_.setLeft(0); });
  proc.step([&] { lblClientName_.setWidth(header.Width()); });
  float W = 0;
  proc.step([&] { W = lblClientName_.Width(); });
  PressButton& find = cmdClientNav_[4];
  proc.step([&] { find.setLeft(W - 1530); });
  proc.step([&] { find.setTop(90); });
  proc.step([&] { find.setWidth(1200); });
  proc.step([&] { find.setHeight(360); });
  if (ShowDocQuillboxClientNavButtons_) {
    static constexpr float kNavOffsets[] = {3045, 2685, 2325, 1965};  // buttons 0 to 3
    for (int i = 3; i >= 0; --i) {
      PressButton& button = cmdClientNav_[i];
      proc.step([&] { button.setVisible(true); });
      proc.step([&] { button.setTop(105); });
      proc.step([&] { button.setWidth(345); });
      proc.step([&] { button.setHeight(330); });
      proc.step([&] { button.setLeft(W - kNavOffsets[i]); });
    }
  } else {
    for (int i = 3; i >= 0; --i) proc.step([&] { cmdClientNav_[i].setVisible(false); });
  }

  // The tree side: its button over the tree.
  PressButton& addCategories = cmdDocManager_[4];
  proc.step([&] { addCategories.setLeft(70); });
  proc.step([&] { addCategories.setTop(45); });
  proc.step([&] { addCategories.setWidth(treeSide.Width() - 140); });
  proc.step([&] { addCategories.setHeight(360); });
  proc.step([&] { tvClientDocumentation_.setLeft(70); });
  proc.step([&] { tvClientDocumentation_.setWidth(treeSide.Width() - 140); });
  proc.step([&] { tvClientDocumentation_.setTop(450); });
  proc.step([&] { tvClientDocumentation_.setHeight(treeSide.Height() - 520); });

  // The list side: the button strip with the title, then the panel below.
  proc.step([&] { buttonStrip.setTop(70); });
  proc.step([&] { buttonStrip.setLeft(70); });
  proc.step([&] { buttonStrip.setWidth(listSide.Width() - 140); });
  proc.step([&] { buttonStrip.setHeight(465); });
  proc.step([&] { headerGradient_.setWidth(buttonStrip.Width()); });
  // The four buttons from the right, 60 twips apart.
  for (int i = 3; i >= 0; --i) {
    PressButton& button = cmdDocManager_[i];
    proc.step([&] { button.setTop(60); });
    proc.step([&] { button.setWidth(1320); });
    proc.step([&] { button.setHeight(345); });
    proc.step([&] {
      float rightEdge = i == 3 ? buttonStrip.Width() : cmdDocManager_[i + 1].Left();
      button.setLeft(rightEdge - button.Width() - 60);
    });
  }
  proc.step([&] { panel.setTop(630); });
  proc.step([&] { panel.setLeft(70); });
  proc.step([&] { panel.setWidth(listSide.Width() - 140); });
  proc.step([&] { panel.setHeight(listSide.Height() - 700); });
  proc.step([&] { listBox.setTop(375); });
  proc.step([&] { listBox.setLeft(60); });
  proc.step([&] { listBox.setWidth(panel.Width() - 120); });
  proc.step([&] { listBox.setHeight(panel.Height() - 960); });
  proc.step([&] { lvDocuments_.setTop(45); });
  proc.step([&] { lvDocuments_.setLeft(45); });
  proc.step([&] { lvDocuments_.setWidth(listBox.Width() - 90); });
  proc.step([&] { lvDocuments_.setHeight(listBox.Height() - 90); });
  proc.step([&] { lblNote_[0].setLeft(135); });
  proc.step([&] { lblNote_[0].setTop(panel.Height() - 510); });
  proc.step([&] { lblNote_[1].setLeft(660); });
  proc.step([&] { lblNote_[1].setTop(panel.Height() - 510); });

  // The progress panel, centred on the list.
  proc.step([&] {
    picDocProgress_.setLeft((lvDocuments_.Width() - picDocProgress_.Width()) / 2 +
                            lvDocuments_.Left());
  });
  proc.step([&] {
    picDocProgress_.setTop((lvDocuments_.Height() - picDocProgress_.Height()) / 2 +
                           lvDocuments_.Top());
  });
  proc.step([&] { Refresh(); });
}

}  // namespace qb
