// Forms: a modal Show runs the form service and ends when the form hides;
// key preview; the active control; typing into text and combo boxes.

#include "services/controls/form.h"

#include <gtest/gtest.h>

#include "services/controls/combo_box.h"
#include "services/controls/command_button.h"
#include "services/controls/platform.h"
#include "services/controls/text_box.h"

namespace qb {
namespace {

class TestForm : public Form {
 public:
  TestForm() : Form("frmTest") {
    add(txtName);
    add(cboKind);
    add(cmdOK);
    cmdOK.Click = [this] { Hide(); };
  }
  TextBox txtName{"txtName", 0};
  ComboBox cboKind{"cboKind"};
  CommandButton cmdOK{"cmdOK"};
};

class FormTest : public ::testing::Test {
 protected:
  FormTest() { resetPlatform(); }
  ~FormTest() override { resetPlatform(); }
};

TEST_F(FormTest, AModalShowHandsTheFormToTheServiceAndEndsWhenItHides) {
  TestForm form;
  int unloads = 0;
  form.Unloaded = [&] { ++unloads; };
  EXPECT_FALSE(form.Visible());

  // Without a service the call returns at once, the form set up and shown.
  form.Show(1);
  EXPECT_TRUE(form.Visible());
  EXPECT_TRUE(form.loaded());

  std::vector<std::string> seen;
  installFormService([&](Form& shown, OwnerForm* owner) {
    seen.push_back(shown.Name() + (shown.showingModally() ? " modal" : "") +
                   (owner == &form ? " over frmTest" : ""));
    auto& test = dynamic_cast<TestForm&>(shown);
    test.txtName.typeText("Acme");
    test.cmdOK.click();
    EXPECT_FALSE(shown.Visible());
  });
  TestForm second;
  second.Show(1, &form);
  EXPECT_EQ(seen, (std::vector<std::string>{"frmTest modal over frmTest"}));
  EXPECT_EQ(second.txtName.Text(), "Acme");
  EXPECT_FALSE(second.showingModally());
  EXPECT_EQ(modalForms(), (std::vector<std::string>{"frmTest", "frmTest"}));

  form.Unload();
  form.Unload();  // a form that is not loaded raises nothing
  EXPECT_EQ(unloads, 1);
  EXPECT_FALSE(form.Visible());
  // A form is the owner of its own messages: it has a window handle of its own.
  EXPECT_NE(static_cast<OwnerForm&>(form).hWnd(), static_cast<OwnerForm&>(second).hWnd());
}

TEST_F(FormTest, KeyPreviewLetsTheFormSeeKeysFirstAndSwallowThem) {
  TestForm form;
  std::string order;
  form.KeyPress = [&](int16_t& key) {
    order += "form:" + std::string(1, static_cast<char>(key)) + " ";
    if (key == 'x') key = 0;
    if (key == 'a') key = 'A';
  };
  form.txtName.KeyPress = [&](int16_t& key) {
    order += "box:" + std::string(1, static_cast<char>(key)) + " ";
  };
  form.txtName.typeText("ab");
  EXPECT_EQ(order, "box:a box:b ");  // no preview yet

  order.clear();
  form.setKeyPreview(true);
  EXPECT_EQ(form.txtName.typeText("xa"), "abA");
  EXPECT_EQ(order, "form:x form:a box:A ");

  EXPECT_EQ(form.ActiveControl(), nullptr);
  form.txtName.SetFocus();
  EXPECT_EQ(form.ActiveControl(), &form.txtName);
  EXPECT_EQ(formOf(form.txtName), &form);
  CommandButton outside{"cmdElsewhere"};
  outside.SetFocus();
  EXPECT_EQ(form.ActiveControl(), nullptr);  // the focus is on no control of the form
}

TEST_F(FormTest, TypingReplacesTheSelectionAndBackspaceTakesItBack) {
  TextBox box{"txtField", 0};
  box.setText("2024 Return");
  box.setSelStart(0);
  box.setSelLength(4);
  EXPECT_EQ(box.typeText("2025"), "2025 Return");
  EXPECT_EQ(box.SelStart(), 4);
  EXPECT_EQ(box.typeText("\b\b"), "20 Return");
  box.setSelStart(3);
  box.setSelLength(100);  // at most to the end
  EXPECT_EQ(box.SelLength(), 6);
  EXPECT_EQ(box.typeText("\b"), "20 ");
  EXPECT_EQ(box.typeText("é\r\t"), "20 é");  // control keys type nothing
  box.setMaxLength(4);
  EXPECT_EQ(box.typeText("xy"), "20 é");

  ComboBox combo{"cboField", 2};
  int16_t seen = 0;
  combo.KeyPress = [&](int16_t& key) {
    seen = key;
    key = 0;
  };
  EXPECT_EQ(combo.typeKey('d'), 0);
  EXPECT_EQ(seen, 'd');
}

}  // namespace
}  // namespace qb
