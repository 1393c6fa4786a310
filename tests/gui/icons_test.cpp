// Icons on any desktop: the icons the program ships draw at every size, the
// desktop's theme answers first when there is one, and a window on a desktop
// without a theme shows an icon on every button, node and row.

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenuBar>
#include <QPushButton>

#include "gui/press_button_widget.h"
#include "gui/theme_icons.h"
#include "services/quillbox/file_icons.h"
#include "tests/gui/desk_fixture.h"

namespace qb::test {

namespace {

// True when the icon, drawn at that size, paints some pixel.
bool draws(const QIcon& icon, int size) {
  const QImage image = icon.pixmap(QSize(size, size)).toImage();
  if (image.isNull()) return false;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) > 0) return true;
    }
  }
  return false;
}

bool sameDrawing(const QIcon& a, const QIcon& b) {
  return a.pixmap(QSize(16, 16)).toImage() == b.pixmap(QSize(16, 16)).toImage();
}

bool isDrawnPage(const QIcon& icon) { return icon.cacheKey() == gui::drawnPageIcon().cacheKey(); }

// Sets an icon theme, looked for in the system's icon folder too, for the
// life of the object, then puts the old theme and folders back.
class ThemeScope {
 public:
  explicit ThemeScope(const QString& theme)
      : saved_(QIcon::themeName()), savedPaths_(QIcon::themeSearchPaths()) {
    QIcon::setThemeSearchPaths(savedPaths_ + QStringList{"/usr/share/icons"});
    QIcon::setThemeName(theme);
  }
  ~ThemeScope() {
    QIcon::setThemeName(saved_);
    QIcon::setThemeSearchPaths(savedPaths_);
  }

 private:
  QString saved_;
  QStringList savedPaths_;
};

}  // namespace

TEST(ShippedIcons, EveryIconTheProgramAsksForDrawsAtEverySize) {
  ensureApplication();
  using namespace gui::iconNames;
  std::vector<std::string> names = {kOpen,
                                    kBrowse,
                                    kFind,
                                    kClose,
                                    kCancel,
                                    kOk,
                                    kGoTo,
                                    "go-first",
                                    "go-previous",
                                    "go-next",
                                    "go-last",
                                    "folder-new",
                                    "folder-open",
                                    quillboxLibrary::kFolderIcon,
                                    quillboxLibrary::kBrokenLinkEmblem};
  for (const char* extension : {"pdf", "docx", "xlsx", "pptx", "jpg", "txt", "html", "xml", "msg",
                                "zip", "mp3", "mov", "exe", "unknown"}) {
    names.push_back(quillboxLibrary::iconNameForExtension(extension));
  }
  for (const std::string& name : names) {
    const QIcon icon = gui::shippedIcon(name);
    EXPECT_TRUE(draws(icon, 16)) << name;
    EXPECT_TRUE(draws(icon, 32)) << name;
    // Drawn from the SVG for a high-resolution screen.
    EXPECT_EQ(icon.pixmap(QSize(64, 64), 1.0).size(), QSize(64, 64)) << name;
    EXPECT_TRUE(draws(icon, 64)) << name;
  }
  EXPECT_TRUE(draws(gui::programIcon(), 48));
  EXPECT_TRUE(gui::shippedIcon("no-such-icon").isNull());
}

TEST(ThemeIcons, TheDesktopsThemeAnswersFirstThenTheShippedIcons) {
  ensureApplication();
  {
    // No theme, or the bare base theme: the shipped icons, for a file type
    // the set lacks its generic icon, for no name the drawn page.
    for (const QString& bare : {QString(), QString("hicolor")}) {
      ThemeScope scope(bare);
      EXPECT_FALSE(gui::desktopHasIconTheme());
      EXPECT_TRUE(sameDrawing(gui::themeIcon("go-next"), gui::shippedIcon("go-next")));
      EXPECT_TRUE(sameDrawing(gui::themeIcon("application-vnd.ms-excel"),
                              gui::shippedIcon("x-office-spreadsheet")));
      EXPECT_TRUE(sameDrawing(gui::themeIcon("image-x-portable-bitmap"),
                              gui::shippedIcon("image-x-generic")));
      EXPECT_TRUE(isDrawnPage(gui::themeIcon("")));
    }
  }
  const bool adwaita = QFileInfo::exists("/usr/share/icons/Adwaita/index.theme");
  if (!adwaita) GTEST_SKIP() << "no desktop theme installed to try";
  ThemeScope scope("Adwaita");
  EXPECT_TRUE(gui::desktopHasIconTheme());
  // The theme's own arrow; the theme has no OK mark, so the shipped one.
  const QIcon next = gui::themeIcon("go-next");
  EXPECT_EQ(next.name(), "go-next");
  EXPECT_FALSE(sameDrawing(next, gui::shippedIcon("go-next")));
  const QIcon ok = gui::themeIcon(gui::iconNames::kOk);
  EXPECT_TRUE(ok.name().isEmpty());
  EXPECT_TRUE(sameDrawing(ok, gui::shippedIcon(gui::iconNames::kOk)));
}

// The client window on a desktop without an icon theme.
class NoThemeDeskTest : public DeskTest {
 protected:
  static void SetUpTestSuite() {
    DeskTest::SetUpTestSuite();
    savedTheme_ = new QString(QIcon::themeName());
    QIcon::setThemeName(QString());
  }
  static void TearDownTestSuite() {
    QIcon::setThemeName(*savedTheme_);
    delete savedTheme_;
  }

  // Every row of the list, in the view on show, has an icon of its own.
  void expectRowIcons(const std::string& where) {
    QAbstractItemModel& rows = *listWidget().currentView().model();
    for (int row = 0; row < rows.rowCount(); ++row) {
      const QIcon icon = qvariant_cast<QIcon>(rows.index(row, 0).data(Qt::DecorationRole));
      EXPECT_TRUE(draws(icon, 16)) << where << " row " << row;
      EXPECT_FALSE(isDrawnPage(icon)) << where << " row " << row;
    }
  }

  static QString* savedTheme_;
};

QString* NoThemeDeskTest::savedTheme_ = nullptr;

TEST_F(NoThemeDeskTest, EveryButtonNodeAndRowShowsAnIcon) {
  // Empty offscreen; a bare X server answers with the "hicolor" base.
  ASSERT_FALSE(gui::desktopHasIconTheme()) << QIcon::themeName().toStdString();
  EXPECT_TRUE(draws(window_->windowIcon(), 32));

  // No blank button: a caption, or an icon that draws. The client
  // navigation, Find Client and Add Categories carry icons.
  int withIcons = 0;
  for (auto* button : host().findChildren<gui::PressButtonWidget*>()) {
    const std::string name = button->objectName().toStdString();
    EXPECT_TRUE(!button->text().isEmpty() || draws(button->icon(), 16)) << name;
    withIcons += draws(button->icon(), 16);
  }
  EXPECT_EQ(withIcons, 6);
  for (QAction* action : window_->menuBar()->findChildren<QAction*>()) {
    if (action->text().contains("Client") && !action->menu()) {
      EXPECT_TRUE(draws(action->icon(), 16)) << action->text().toStdString();
    }
  }

  // Every category, open or closed, shows a folder of its own.
  gui::CategoryTreeWidget& tree = treeWidget();
  tree.expandAll();
  settle();
  std::vector<std::string> categories;
  for (QTreeWidgetItemIterator it(&tree); *it; ++it) {
    EXPECT_TRUE(draws((*it)->icon(0), 16)) << (*it)->text(0).toStdString();
    EXPECT_FALSE(isDrawnPage((*it)->icon(0))) << (*it)->text(0).toStdString();
    categories.push_back((*it)->text(0).toStdString());
  }
  ASSERT_GE(categories.size(), 5u);

  // Every document of the client, in the four views.
  for (const std::string& category : categories) {
    clickCategory(category);
    for (enumListViewViews view : {viewIcons, viewSmallIcons, viewList, viewDetails}) {
      quillbox().changeDocListViewView(view);
      settle();
      expectRowIcons(category + " view " + std::to_string(view));
    }
  }
  clickCategory("2024");
  quillbox().changeDocListViewView(viewIcons);
  screenshot("no-theme-icons");
  quillbox().changeDocListViewView(viewDetails);
  screenshot("no-theme-details");
}

}  // namespace qb::test
